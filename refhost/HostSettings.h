#pragma once

#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

class QSettings;

namespace refhost {

/// Whether the file may be opened as one of settings: a file, since reading a pipe would wait for somebody to write
/// into it, and one that is not so large that it must be something else.
bool isSettingsFile(const QString& path);

/// What people wrote into melvark/host.conf of the configuration directories, the user's own and those of the system.
class HostSettings {
public:
    /// Reads the files; one that is missing, damaged or something else says nothing.
    HostSettings();
    HostSettings(const HostSettings&) = delete;
    HostSettings& operator=(const HostSettings&) = delete;
    ~HostSettings();

    /// What the user's file says of the key ("group/name"), else the first of the system's that says something; an
    /// invalid value when none does.
    QVariant value(const QString& key) const;

private:
    std::vector<std::unique_ptr<QSettings>> files_; ///< The user's first.
};

} // namespace refhost
