#pragma once

#include "tests/editors/DocumentEditorFixture.h"

#include <filesystem>
#include <map>
#include <string_view>

/// What lay in a directory: texts by file name.
using DirectoryContent = std::map<std::string, std::string>;

/// Tests of unsaved work, each of which starts without any. An editor that crashed is one whose files are laid down
/// again after it was freed.
class UnsavedWorkFixture : public DocumentEditorFixture {
protected:
    UnsavedWorkFixture();
    ~UnsavedWorkFixture() override;

    /// The path of the file of unsaved work for the user of the scripts.
    static std::filesystem::path fileOf(const AnsiString& editor, const AnsiString& source);
    static DirectoryContent content();
    static void putBack(const DirectoryContent& content);
    static void leave(const std::filesystem::path& file, const AnsiString& text);
    /// Names of the files, without locks: "x.dat x.dat.kept".
    static AnsiString listing();

    /// The file as another program would write it: identifier, number of rows, keys, cells column by column.
    static AnsiString fileText(int documentId, const std::vector<AnsiString>& keys,
                               const std::vector<std::map<AnsiString, AnsiString>>& lines);

private:
    static std::filesystem::path directory();
};
