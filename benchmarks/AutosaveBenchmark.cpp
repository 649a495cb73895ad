// What keeping and taking up unsaved work costs beyond the bare bytes.
//
// Floor of writing: the same bytes, ready beforehand, written to a new file in pieces of the same size, synced,
// renamed, the directory synced. Floor of reading: the file read in pieces. Both take turns with the editor's own
// writing and reading in one run; medians of the rounds, by the wall's clock: waiting for the disk is part of it.
// Without the syncs is what the window cannot be drawn for even on the fastest disk. How long the picture of a real
// form stands still is measured on one, too.
//
//   autosave_benchmark DIRECTORY [ROUNDS [wall|processor]]      the directory tells which disk is measured

#include "benchmarks/AutosaveFrames.h"
#include "benchmarks/database/CostClock.h"
#include "benchmarks/database/Report.h"
#include "editwin/model/AutosaveFile.h"
#include "editwin/model/KeptFile.h"

#include <QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <istream>
#include <sstream>
#include <string>
#include <unistd.h>

namespace {

using namespace melvark;
using benchmark::CostClock;

constexpr int c_Columns = 26;
constexpr std::size_t c_Piece = std::size_t{64} * 1024;

std::vector<AnsiString> keys() {
    std::vector<AnsiString> all;
    for (int column = 0; column < c_Columns; ++column) {
        all.push_back("COLUMN" + std::to_string(column));
    }
    return all;
}

/// Lines as a delivery note has them: names in Czech, numbers, and some columns that are empty.
TDataGrid lines(int rows) {
    const std::array<AnsiString, 4> texts{"Žitný chléb konzumní", "12,50", "", "1890,25"};
    TDataGrid store;
    store.SetColCount(c_Columns);
    store.SetRowCount(rows);
    for (int column = 0; column < c_Columns; ++column) {
        for (int row = 0; row < rows; ++row) {
            store.SetCells(column, row, texts[static_cast<std::size_t>(column) % texts.size()]);
        }
    }
    return store;
}

void require(bool isDone) {
    if (!isDone) {
        std::perror("autosave_benchmark");
        std::exit(1);
    }
}

enum class Sync { Yes, No };

void writeBare(const std::filesystem::path& directory, const std::string& text, Sync sync) {
    const std::filesystem::path fresh = directory / "bare.new";
    const int file = open(fresh.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0600);
    require(file >= 0);
    for (std::size_t at = 0; at < text.size(); at += c_Piece) {
        const std::size_t count = std::min(c_Piece, text.size() - at);
        require(write(file, text.data() + at, count) == static_cast<ssize_t>(count));
    }
    require(sync == Sync::No || fsync(file) == 0);
    require(close(file) == 0);
    std::filesystem::rename(fresh, directory / "bare");
    if (sync == Sync::Yes) {
        const int folder = open(directory.c_str(), O_RDONLY | O_DIRECTORY);
        require(folder >= 0 && fsync(folder) == 0 && close(folder) == 0);
    }
}

void readBare(const std::filesystem::path& name) {
    std::vector<char> piece(c_Piece);
    const int file = open(name.c_str(), O_RDONLY);
    require(file >= 0);
    ssize_t count = 1;
    while (count > 0) {
        count = read(file, piece.data(), piece.size());
        require(count >= 0);
    }
    require(close(file) == 0);
}

/// The editor's writing without waiting for the disk.
void writeWithoutSync(const PrivateDirectory& directory, const std::vector<AnsiString>& columns,
                      const TDataGrid& store) {
    {
        const Descriptor file = directory.Make("unsynced.new");
        DescriptorOutput buffer(file);
        std::ostream out(&buffer);
        WriteAutosave(out, 7, columns, store);
    }
    directory.Rename("unsynced.new", "unsynced");
}

void print(const char* work, int rows, const benchmark::Medians& medians) {
    std::printf("%-28s %7d %10.2f %10.2f %8.2f\n", work, rows, medians.Work / 1000, medians.Floor / 1000,
                medians.Work / medians.Floor);
}

void measure(const CostClock& clock, const std::filesystem::path& place, int rows, int rounds) {
    const std::vector<AnsiString> columns = keys();
    const TDataGrid store = lines(rows);
    std::ostringstream text;
    WriteAutosave(text, 7, columns, store);
    const std::string bytes = text.str();
    std::filesystem::remove_all(place); // what another size left is not to be taken up
    const PrivateDirectory directory = PrivateDirectory::Open(place).value();
    KeptFile file(place / "lines.dat");
    const auto keep = [&] { file.Write([&](std::ostream& out) { WriteAutosave(out, 7, columns, store); }); };
    const auto take = [&] {
        bool isRead = false;
        file.Read([&](std::istream& in) { isRead = ReadAutosave(in, columns).has_value(); });
        require(isRead);
    };

    std::printf("%d lines are %.1f MB\n", rows, static_cast<double>(bytes.size()) / 1e6);
    print("write", rows,
          benchmark::compete({[&] { return clock.microseconds(keep); },
                              [&] { return clock.microseconds([&] { writeBare(place, bytes, Sync::Yes); }); }},
                             rounds));
    print("write without waiting", rows,
          benchmark::compete({[&] { return clock.microseconds([&] { writeWithoutSync(directory, columns, store); }); },
                              [&] { return clock.microseconds([&] { writeBare(place, bytes, Sync::No); }); }},
                             rounds));
    print("read", rows,
          benchmark::compete({[&] { return clock.microseconds(take); },
                              [&] { return clock.microseconds([&] { readBare(place / "lines.dat"); }); }},
                             rounds));
}

} // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fprintf(stderr, "usage: autosave_benchmark DIRECTORY [ROUNDS [wall|processor]]\n");
        return 64;
    }
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 9;
    const bool isProcessor = argc > 3 && std::string_view(argv[3]) == "processor";
    const CostClock clock(isProcessor ? CostClock::Kind::Processor : CostClock::Kind::Wall);
    const std::filesystem::path place = std::filesystem::absolute(argv[1]) / "melvark-autosave-benchmark";
    std::printf("%-28s %7s %10s %10s %8s\n", "work", "lines", "ms", "bare ms", "ratio");
    for (const int rows : {1'000, 10'000, 100'000}) {
        measure(clock, place, rows, rounds);
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    for (const int rows : {1'000, 10'000}) {
        benchmark::measureFrames(place, rows, 10 * rounds);
    }
    std::filesystem::remove_all(place);
    return 0;
}
