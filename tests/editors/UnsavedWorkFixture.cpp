#include "tests/editors/UnsavedWorkFixture.h"

#include "editwin/AutosavePlace.h"

#include <fstream>
#include <sstream>

UnsavedWorkFixture::UnsavedWorkFixture() {
    std::filesystem::remove_all(directory());
}

UnsavedWorkFixture::~UnsavedWorkFixture() {
    std::filesystem::remove_all(directory());
}

std::filesystem::path UnsavedWorkFixture::directory() {
    return melvark::AutosaveDirectory(RecordingHost().databaseDigest);
}

std::filesystem::path UnsavedWorkFixture::fileOf(const AnsiString& editor, const AnsiString& source) {
    return directory() / ("melvarkeditor_novak_" + editor + "_" + source + ".dat");
}

DirectoryContent UnsavedWorkFixture::content() {
    DirectoryContent files;
    if (!std::filesystem::exists(directory())) {
        return files;
    }
    for (const auto& entry : std::filesystem::directory_iterator(directory())) {
        std::ostringstream text;
        text << std::ifstream(entry.path()).rdbuf();
        files[entry.path().filename()] = text.str();
    }
    return files;
}

void UnsavedWorkFixture::putBack(const DirectoryContent& content) {
    for (const auto& [name, text] : content) {
        leave(directory() / name, text);
    }
}

void UnsavedWorkFixture::leave(const std::filesystem::path& file, const AnsiString& text) {
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file) << text;
}

AnsiString UnsavedWorkFixture::listing() {
    AnsiString names;
    for (const auto& [name, text] : content()) {
        if (!name.ends_with(".lock")) {
            names += (names.empty() ? "" : " ") + name;
        }
    }
    return names;
}

AnsiString UnsavedWorkFixture::fileText(int documentId, const std::vector<AnsiString>& keys,
                                        const std::vector<std::map<AnsiString, AnsiString>>& lines) {
    AnsiString text = std::to_string(documentId) + "\n" + std::to_string(lines.size()) + "\n";
    for (const AnsiString& key : keys) {
        text += key + "\n";
    }
    for (const AnsiString& key : keys) {
        for (const auto& line : lines) {
            text += (line.contains(key) ? line.at(key) : "") + "\n";
        }
    }
    return text;
}
