#pragma once

#include "tests/database/Engines.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace refhost {

/// Two databases of the same content, one on each engine, that are asked the same and have to answer the same.
class BothEngines {
public:
    /// Each filled by `fill`, with sessions of "novakova".
    template <typename Fill>
    explicit BothEngines(Fill fill) {
        openSessions("novakova");
        fill(*embedded_);
        fill(*server_);
    }

    /// Goes on in new sessions of a user.
    void openSessions(const std::string& user);

    Database& embedded() { return *embedded_; }
    Database& server() { return *server_; }

    /// Names what the following calls belong to, for the differences.
    void begin(std::string subject) { subject_ = std::move(subject); }

    /// The embedded engine's result; nothing when it refused.
    std::optional<TCallResult> call(const TProcedureCall& call);
    /// Rows in any order: the engines sort nulls to different ends.
    void query(const std::string& sql);
    /// All that the documents, their sources and the settings hold.
    void compareContents();

    int calls() const { return calls_; }
    int refused() const { return refused_; }
    std::size_t differences() const { return differences_.size(); }
    /// The first differences, for people; empty when the engines agree.
    std::string report() const;

private:
    void expectEqual(const std::string& what, const std::string& embedded, const std::string& server);

    std::string embeddedUrl_ = newDatabaseUrl(Engine::SQLite);
    std::string serverUrl_ = newDatabaseUrl(Engine::PostgreSQL);
    std::unique_ptr<Database> embedded_;
    std::unique_ptr<Database> server_;
    std::string subject_;
    int calls_ = 0;
    int refused_ = 0;
    std::vector<std::string> differences_;
};

} // namespace refhost
