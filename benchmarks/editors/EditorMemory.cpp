#include "benchmarks/editors/EditorMemory.h"

#include "editwin/model/DataGrid.h"
#include "host/FormatSettings.h"
#include "refhost/database/Databases.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <stdexcept>

namespace benchmark {

namespace {

/// What the process's allocator has given out.
double allocated() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

/// A figure of the process in bytes: "VmRSS:" what it occupies, "VmHWM:" the most that it has occupied.
double occupied(const std::string& figure) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        if (word == figure) {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes * 1024;
        }
    }
    throw std::runtime_error("this system does not tell how much memory a process has");
}

void forgetMostOccupied() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

const EditorKind& kindOf(const std::string& name) {
    return name == c_NoteEditor.Name ? c_NoteEditor : c_OrderEditor;
}

struct Use {
    double Store = 0;
    double Grid = 0;
    double Process = 0;
    double Most = 0;
};

Use usedBy(const std::string& command) {
    FILE* const output = popen(command.c_str(), "r");
    Use use;
    const int read =
        output ? std::fscanf(output, "%lf %lf %lf %lf", &use.Store, &use.Grid, &use.Process, &use.Most) : 0;
    if (read != 4 || pclose(output) != 0) {
        throw std::runtime_error("the process that counts memory failed: " + command);
    }
    return use;
}

} // namespace

void EditorMemory::shortenNames(Company& company) {
    for (const char* sql :
         {"update SKLADPOL set NAZEV = 'Item ' || ID", "update SKUPSPOL1 set NAZEV = 'Group A' || ID",
          "update SKUPSPOL2 set NAZEV = 'Group B' || ID", "update SKUPSPOL3 set NAZEV = 'Group C' || ID",
          "update DODAVATEL set JMENO = 'Supplier ' || ID"}) {
        company.bare().script(sql);
    }
}

void EditorMemory::measure(Company& company, const EditorKind& kind, std::int64_t source, Report& report) {
    const std::int64_t document = kind.Columns == c_NoteEditor.Columns ? company.newNote() : company.newOrder();
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
    const Use use = usedBy(program + " " + c_Option + " '" + company.url() + "' " + kind.Name + " " +
                           std::to_string(document) + " " + std::to_string(source));
    const double cells = static_cast<double>(company.lines()) * kind.Columns;
    const auto add = [&](const char* part, double bytes) {
        constexpr double c_Aim = 80;
        report.add({company.engineName(), std::string(kind.Name) + " " + part, company.lines(), bytes / cells, c_Aim,
                    Unit::Bytes});
    };
    add("store, a cell", use.Store);
    add("grid, a cell", use.Grid);
    add("process, a cell", use.Process);
    add("process at most, a cell", use.Most);
}

int EditorMemory::run(char** arguments) {
    const std::string url = arguments[0]; // its user has his role already
    const bool isServer = !url.starts_with("sqlite:");
    const auto database = refhost::openDatabase(url + (isServer ? std::string(" user=") + Company::c_User : ""),
                                                Company::c_User, TFormatSettings::Czech(), refhost::OpenMode::Existing);
    const EditorKind& kind = kindOf(arguments[1]);
    const std::int64_t document = std::stoll(arguments[2]);
    ClerkConnection clerk(*database);
    BenchmarkHost host(clerk);
    const TScopedHost scope(host);
    const auto shown = [&] {
        std::unique_ptr<TEditBox> editor = kind.Open(document);
        show(*editor);
        untilPainted();
        return editor;
    };
    shown()->Close(); // from what the supplier delivered last, at most some hundred lines
    malloc_trim(0);

    clerk.chooses(kind.Source, std::stoll(arguments[3]));
    forgetMostOccupied();
    const double occupiedBefore = occupied("VmRSS:");
    const double allocatedBefore = allocated();
    const std::unique_ptr<TEditBox> editor = kind.Open(document);
    const double allocatedFilled = allocated();
    show(*editor);
    untilPainted();
    std::printf("%.0f %.0f %.0f %.0f\n", allocatedFilled - allocatedBefore, allocated() - allocatedFilled,
                occupied("VmRSS:") - occupiedBefore, occupied("VmHWM:") - occupiedBefore);
    return 0;
}

} // namespace benchmark
