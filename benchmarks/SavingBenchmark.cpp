// What saving a delivery note costs beyond the bare database calls.
//
// Floor: the calls of the procedures, made ready beforehand, run one after the other on the connection.
// Measured: the same calls as the editor makes them, each value found by its column's key in the cell store, trimmed,
// and set on a procedure object. Both save the same rows into the same file, in turn, in one run; medians of the
// rounds.
//
//   saving_benchmark [ROWS [ROUNDS]]

#include "editors/DodakTables.h"
#include "editwin/model/DataGrid.h"
#include "host/HostServices.h"
#include "host/LiveData.h"
#include "refhost/database/Databases.h"
#include "tests/session/TinyCompany.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

/// A host that gives nothing but a connection.
class ConnectionHost : public THostServices {
public:
    explicit ConnectionHost(TConnection& connection) : connection_(connection) {}

    TConnection& Connection() override { return connection_; }
    const TFormatSettings& FormatSettings() const override { return settings_; }
    std::optional<AnsiString> Translation(std::string_view, std::string_view) const override { return std::nullopt; }
    std::string_view ImageData(std::string_view, std::string_view) const override { return {}; }
    TDateTime Now() const override { return {}; }
    void ShowError(std::exception_ptr) noexcept override {}

private:
    TConnection& connection_;
    TFormatSettings settings_ = TFormatSettings::Czech();
};

/// Passes calls on and keeps them, so that the floor makes just the same ones.
class KeepingConnection : public TConnection {
public:
    explicit KeepingConnection(TConnection& target) : target_(target) {}

    TProcedureInfo Describe(const AnsiString& procedure) override { return target_.Describe(procedure); }
    TCallResult Execute(const TProcedureCall& call) override {
        calls.push_back(call);
        return target_.Execute(call);
    }
    TResultTable Query(const AnsiString& sql) override { return target_.Query(sql); }

    std::vector<TProcedureCall> calls;

private:
    TConnection& target_;
};

void fill(TDataGrid& store, const std::vector<RColumn>& columns, int rows) {
    const std::pair<const char*, const char*> cells[] = {{"SKLADPOL", "Mouka"},
                                                         {"SKLAD", "Hlavní sklad"},
                                                         {"MNOZSTVI", "7,5"},
                                                         {"DPH", "21 %"},
                                                         {"JEDNCENABSESLEVOU", "9"},
                                                         {"JEDNDPHASESLEVOU", "1,89"},
                                                         {"JEDNCENASSESLEVOU", "10,89"},
                                                         {"CENABSESLEVOU", "67,50"},
                                                         {"DPHASESLEVOU", "14,18"},
                                                         {"CENASSESLEVOU", "81,68"}};
    store.SetColCount(static_cast<int>(columns.size()));
    store.SetRowCount(rows);
    for (int row = 0; row < rows; ++row) {
        for (const auto& [key, text] : cells) {
            store.SetCells(std::ranges::find(columns, key, &RColumn::Name)->DataColumn, row, text);
        }
    }
}

void saveAsTheEditor(const std::vector<RColumn>& columns, const TDataGrid& store) {
    TLiveStoredProc("MELVARKEDITORResetTemp").Exec(false);
    if (!melvark::SaveLines(melvark::c_DodakKind, {columns, columns}, store, tinycompany::c_OpenNote,
                            {{"a_DODKID_ZDROJ", -1}, {"a_DDOBID_ZDROJ", -1}})) {
        std::abort();
    }
}

template <class Work>
double milliseconds(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> figures) {
    std::ranges::nth_element(figures, figures.begin() + static_cast<std::ptrdiff_t>(figures.size() / 2));
    return figures[figures.size() / 2];
}

} // namespace

int main(int argc, char** argv) {
    const int rows = argc > 1 ? std::atoi(argv[1]) : 1000;
    const int rounds = argc > 2 ? std::atoi(argv[2]) : 5;
    const auto file = std::filesystem::temp_directory_path() / "melvark-saving-benchmark.db";
    std::filesystem::remove(file);
    tinycompany::create(file);
    const auto database = refhost::openDatabase("sqlite:" + file.string(), "novakova", TFormatSettings::Czech(),
                                                refhost::OpenMode::Existing);
    ConnectionHost host(*database);
    const TScopedHost scope(host);
    const std::vector<RColumn> columns = melvark::DodakColumns({});
    TDataGrid store;
    fill(store, columns, rows);

    KeepingConnection keeping(*database);
    {
        ConnectionHost keepingHost(keeping);
        const TScopedHost keepingScope(keepingHost);
        saveAsTheEditor(columns, store); // also warms every prepared statement
    }
    std::vector<double> floor;
    std::vector<double> editor;
    for (int round = 0; round < rounds; ++round) {
        floor.push_back(milliseconds([&] {
            for (const TProcedureCall& call : keeping.calls) {
                database->Execute(call);
            }
        }));
        editor.push_back(milliseconds([&] { saveAsTheEditor(columns, store); }));
    }
    std::printf("%d rows, %d rounds: bare calls %.1f ms, editor %.1f ms, ratio %.3f\n", rows, rounds, median(floor),
                median(editor), median(editor) / median(floor));
    std::filesystem::remove(file);
    return 0;
}
