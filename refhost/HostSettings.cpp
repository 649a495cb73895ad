#include "refhost/HostSettings.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <algorithm>

namespace refhost {

bool isSettingsFile(const QString& path) {
    constexpr qint64 c_largest = 65536;
    const QFileInfo file(path);
    return file.isFile() && file.size() <= c_largest;
}

HostSettings::HostSettings() {
    for (const QString& folder : QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)) {
        const QString path = folder + QStringLiteral("/melvark/host.conf");
        if (isSettingsFile(path)) {
            files_.push_back(std::make_unique<QSettings>(path, QSettings::IniFormat));
        }
    }
}

HostSettings::~HostSettings() = default;

QVariant HostSettings::value(const QString& key) const {
    const auto file = std::ranges::find_if(files_, [&](const auto& each) { return each->contains(key); });
    return file == files_.end() ? QVariant() : (*file)->value(key);
}

} // namespace refhost
