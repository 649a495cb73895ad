#include "tests/autosave/WrittenFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

using melvark::KeptFile;

namespace {

/// As much as the editor writes at once, so that there is a moment between two writes of one content.
constexpr std::size_t c_Piece = std::size_t{64} * 1024;

} // namespace

WrittenFileTest::WrittenFileTest() {
    // Tests that give up the administrator's rights go on in it.
    EXPECT_EQ(chmod(folder_.c_str(), 01777), 0);
}

std::filesystem::path WrittenFileTest::path(std::string_view suffix) const {
    return directory() / ("x.dat" + AnsiString(suffix));
}

void WrittenFileTest::leave(std::string_view suffix, const AnsiString& text) const {
    std::filesystem::create_directory(directory());
    std::ofstream(path(suffix)) << text;
}

AnsiString WrittenFileTest::listing() const {
    std::vector<AnsiString> names;
    for (const auto& entry : std::filesystem::directory_iterator(directory())) {
        names.push_back(entry.path().filename());
    }
    std::ranges::sort(names);
    AnsiString all;
    for (const AnsiString& name : names) {
        all += (all.empty() ? "" : " ") + name;
    }
    return all;
}

AnsiString WrittenFileTest::textOf(const std::filesystem::path& file) {
    std::ifstream in(file);
    return in ? AnsiString(std::istreambuf_iterator<char>(in), {}) : "none";
}

void WrittenFileTest::write(KeptFile& file, const AnsiString& text) {
    file.Write([&](std::ostream& out) {
        for (std::size_t at = 0; at < text.size(); at += c_Piece) {
            out << std::string_view(text).substr(at, c_Piece);
        }
    });
}

AnsiString WrittenFileTest::restored(KeptFile& file) {
    AnsiString text;
    try {
        if (!file.HasContent()) {
            return "nothing";
        }
        file.Read([&](std::istream& in) {
            // The buffer alone: a stream would keep the buffer's error to itself.
            std::vector<char> piece(c_Piece);
            std::streamsize count = 1;
            while (count > 0) {
                count = in.rdbuf()->sgetn(piece.data(), std::ssize(piece));
                text.append(piece.data(), static_cast<std::size_t>(count));
            }
        });
    } catch (const EInOutError&) {
        return "unread";
    }
    return text;
}

AnsiString WrittenFileTest::restoredNext() const {
    KeptFile file(path());
    return restored(file);
}

OrdinaryUser::OrdinaryUser() {
    if (geteuid() == 0) {
        EXPECT_EQ(seteuid(c_Id), 0);
    }
}

OrdinaryUser::~OrdinaryUser() {
    if (getuid() == 0) {
        EXPECT_EQ(seteuid(0), 0);
    }
}
