#include "refhost/screens/WindowLook.h"

#include "host/ValueText.h"
#include "refhost/HostSettings.h"
#include "refhost/OwnFolder.h"
#include "refhost/screens/Screens.h"

#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

#include <array>

namespace refhost {

namespace {

/// More pixels than this are no table.
constexpr int c_mostPixels = 20000;

const QString c_descending = QStringLiteral("descending");
const QString c_ascending = QStringLiteral("ascending");

struct PlaceRow {
    QString key;
    int melvark::WindowPlacement::*member;
};

const std::array c_place{
    PlaceRow{QStringLiteral("window/left"), &melvark::WindowPlacement::Left},
    PlaceRow{QStringLiteral("window/top"), &melvark::WindowPlacement::Top},
    PlaceRow{QStringLiteral("window/width"), &melvark::WindowPlacement::Width},
    PlaceRow{QStringLiteral("window/height"), &melvark::WindowPlacement::Height},
};
const QString c_maximized = QStringLiteral("window/maximized");
const QString c_screen = QStringLiteral("window/screen");

/// The two tables of a screen, and the groups in which the file has them.
struct TableRow {
    QString name;
    TableLook ScreenLook::*look;
    int ScreenLook::*height;
};

const std::array c_tables{
    TableRow{QStringLiteral("documents"), &ScreenLook::documents, &ScreenLook::documentsHeight},
    TableRow{QStringLiteral("lines"), &ScreenLook::lines, &ScreenLook::linesHeight},
};

QString toKey(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// What stands there as a whole number that an int takes.
std::optional<int> numberOf(const QSettings& settings, const QString& key) {
    return TextToInt(settings.value(key).toString().toStdString());
}

int pixelsOf(const QSettings& settings, const QString& key) {
    const int pixels = numberOf(settings, key).value_or(0);
    return pixels > 0 && pixels <= c_mostPixels ? pixels : 0;
}

std::optional<melvark::WindowPlacement> readPlace(const QSettings& settings) {
    melvark::WindowPlacement place;
    for (const auto& [key, member] : c_place) {
        const auto number = numberOf(settings, key);
        if (!number) {
            return std::nullopt;
        }
        place.*member = *number;
    }
    place.Maximized = settings.value(c_maximized).toBool();
    return place;
}

TableLook readTable(QSettings& settings, const QString& group) {
    TableLook look;
    settings.beginGroup(group);
    look.sortColumn = settings.value(QStringLiteral("sort")).toString().toStdString();
    const bool isDescending = settings.value(QStringLiteral("order")).toString() == c_descending;
    look.sortOrder = isDescending && !look.sortColumn.empty() ? Qt::DescendingOrder : Qt::AscendingOrder;
    settings.beginGroup(u"widths");
    for (const QString& column : settings.allKeys()) {
        if (const int width = pixelsOf(settings, column)) {
            look.widths[column.toStdString()] = width;
        }
    }
    settings.endGroup();
    settings.endGroup();
    return look;
}

void writeTable(QSettings& settings, const QString& group, const TableLook& look) {
    settings.beginGroup(group);
    if (!look.sortColumn.empty()) {
        settings.setValue(u"sort", toKey(look.sortColumn));
        settings.setValue(u"order", look.sortOrder == Qt::DescendingOrder ? c_descending : c_ascending);
    }
    settings.beginGroup(u"widths");
    for (const auto& [column, width] : look.widths) {
        settings.setValue(toKey(column), width);
    }
    settings.endGroup();
    settings.endGroup();
}

} // namespace

std::string windowLookFile() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return (folder + QStringLiteral("/melvark/window.conf")).toStdString();
}

WindowLook readWindowLook(const std::string& file) {
    const QString path = QString::fromStdString(file);
    if (!isSettingsFile(path)) {
        return {};
    }
    QSettings settings(path, QSettings::IniFormat);
    WindowLook look;
    look.place = readPlace(settings);
    look.screen = settings.value(c_screen).toString().toStdString();
    for (const ScreenDefinition& screen : screenDefinitions()) {
        const QString group = toKey(screen.code);
        ScreenLook& screenLook = look.screens[std::string(screen.code)];
        for (const auto& [name, table, height] : c_tables) {
            screenLook.*table = readTable(settings, group + u'/' + name);
            screenLook.*height = pixelsOf(settings, group + u'/' + name + QStringLiteral("/height"));
        }
    }
    return look;
}

bool writeWindowLook(const std::string& file, const WindowLook& look) {
    makeOwnFolder(std::filesystem::path(file).parent_path());
    const QString path = QString::fromStdString(file);
    if (const QFileInfo info(path); info.exists() && !info.isFile()) {
        return false;
    }
    // It writes beside the file and renames.
    QSettings settings(path, QSettings::IniFormat);
    settings.clear();
    if (look.place) {
        for (const auto& [key, member] : c_place) {
            settings.setValue(key, (*look.place).*member);
        }
        settings.setValue(c_maximized, look.place->Maximized.value_or(false));
    }
    settings.setValue(c_screen, toKey(look.screen));
    for (const auto& [code, screenLook] : look.screens) {
        for (const auto& [name, table, height] : c_tables) {
            const QString group = toKey(code) + u'/' + name;
            writeTable(settings, group, screenLook.*table);
            if (screenLook.*height > 0) {
                settings.setValue(group + QStringLiteral("/height"), screenLook.*height);
            }
        }
    }
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace refhost
