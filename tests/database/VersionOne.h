#pragma once

#include "refhost/database/UpgradeReport.h"
#include "tests/database/Engines.h"

#include <string>
#include <vector>

namespace refhost {

/// The address of a new database as the first version of the program made it, with a few documents of the sample
/// company: the notes 1082, 1087 and 1089, the orders 940, 946 and 953, the templates 8 and 871 and all that they name,
/// and the column setting 1 of "novakova", which she shares. On the server it is that of an administrator.
std::string versionOneUrl(Engine engine);

/// Upgrades the database and says in full why it could not. Throws EDatabaseError.
UpgradeReport upgraded(const std::string& url);

/// A connection that asks for no version, to look at a database of any. On the server it is the administrator's.
class BareConnection {
public:
    explicit BareConnection(const std::string& url);
    BareConnection(const BareConnection&) = delete;
    BareConnection& operator=(const BareConnection&) = delete;
    ~BareConnection();

    /// Runs statements. Throws EDatabaseError.
    void run(const std::string& sql);
    /// A query's rows, values parted by commas; null is "-".
    std::vector<std::string> rows(const std::string& sql);
    /// The same with the columns' names (upper case) as a first row.
    std::vector<std::string> table(const std::string& sql);

private:
    struct Link;
    std::unique_ptr<Link> link_;
};

} // namespace refhost
