#include "tests/database/ClerksSweep.h"

#include "host/Exceptions.h"
#include "tests/database/Answers.h"
#include "tests/database/ContractCompany.h"

#include <algorithm>
#include <array>
#include <future>
#include <iterator>
#include <random>
#include <set>
#include <thread>

namespace refhost {

namespace {

using std::chrono::steady_clock;

/// The first clerk's quantities begin here, those of each further one as much higher: none stands in the company
/// before.
constexpr std::int64_t c_QuantitiesOfOne = 1'000'000;

/// A kind of document, how it is saved and where its lines are.
struct Kind {
    const char* Row;
    const char* Close;
    const char* Document; ///< The closing call's parameter.
    const char* Lines;    ///< The table of the lines.
    const char* Of;       ///< Its column of the document.
    std::array<std::int64_t, 3> Documents;
};

constexpr Kind c_Note{"DodakInsertToTemp", "DodakTempUloz", "a_DODKID",
                      "DODAKPOL",          "DODKID",        {c_OpenNote, c_NoteOfBranch, c_SameDayNote}};
constexpr Kind c_OrderOrTemplate{"DodObjInsertToTemp", "DodObjTempUloz", "a_DDOBID",
                                 "DODOBJPOL",          "DDOBID",         {c_Order, c_EarlierOrder, c_Template}};

/// Order lines that never come to their end.
struct OrderLine {
    const char* Id;
    const char* Item;
};
constexpr OrderLine c_OrderLines[] = {{"401", "Mouka hladká"}, {"402", "Cukr krystal"}};

constexpr const char* c_Suppliers[] = {"Nápoje Švec", "Čajovna Říp"};
constexpr const char* c_Users[] = {"novakova", "dvorak", "svoboda", "kralova"};
constexpr const char* c_Names[] = {"Šířky", "Ceny", "Moje"};

/// What a clerk meets who comes too late: the document is closed, the setting is gone or another user's, its name is
/// taken.
const std::set<std::string> c_Understood{"ML011", "ML013", "ML060", "ML061", "ML063"};

struct Save {
    const Kind* Of;
    std::int64_t Document;
    int Lines;
    bool IsAcknowledged;
    bool MakesOrders; ///< So that its lines may stand in other documents.
};

/// One clerk with a connection of his own.
class Clerk {
public:
    Clerk(const std::string& url, int number, unsigned seed)
        : database_(openAs(url, c_Users[static_cast<std::size_t>(number / 2) % std::size(c_Users)])),
          random_(seed + static_cast<unsigned>(number)),
          quantity_(c_QuantitiesOfOne * (number + 1)) {}

    void workUntil(steady_clock::time_point end) {
        while (steady_clock::now() < end) {
            switch (oneOf(4)) {
            case 0:
                saveOrder();
                break;
            case 1:
                useSetting();
                break;
            default:
                saveNote();
            }
        }
    }

    const std::map<std::int64_t, Save>& saves() const { return saves_; }
    const std::map<std::string, int>& told() const { return told_; }

private:
    int oneOf(int count) { return std::uniform_int_distribution<int>(0, count - 1)(random_); }

    /// Whether the call was accepted.
    bool call(const std::string& procedure, Parameters parameters = {}) {
        try {
            database_->Execute({"MELVARKEDITOR" + procedure, std::move(parameters), false});
            return true;
        } catch (const EDatabaseError& error) {
            ++told_[error.Code()];
            return false;
        }
    }

    void saveNote() {
        std::vector<Parameters> rows;
        for (int line = 0, lines = 1 + oneOf(4); line < lines; ++line) {
            const OrderLine& delivered = c_OrderLines[oneOf(2)];
            rows.push_back({{"a_SKLADPOL", AnsiString(delivered.Item)}});
            if (oneOf(2) == 0) {
                rows.back().push_back({"a_DOBSID", AnsiString(delivered.Id)});
            }
        }
        save(c_Note, std::move(rows), false);
    }

    void saveOrder() {
        const bool makesOrders = oneOf(3) == 0;
        std::vector<Parameters> rows;
        for (int line = 0, lines = 1 + oneOf(4); line < lines; ++line) {
            rows.push_back({{"a_SKLADPOL", AnsiString("Chléb")}, {"a_SKPLID", AnsiString("51")}});
            if (makesOrders) {
                rows.back().push_back({"a_DODAVATEL", AnsiString(c_Suppliers[oneOf(2)])});
            }
        }
        save(c_OrderOrTemplate, std::move(rows), makesOrders);
    }

    void save(const Kind& kind, std::vector<Parameters> rows, bool makesOrders) {
        const std::int64_t document = kind.Documents[static_cast<std::size_t>(oneOf(3))];
        const std::int64_t quantity = quantity_++;
        bool isAccepted = call("ResetTemp");
        for (Parameters& row : rows) {
            row.push_back({"a_MNOZSTVI", std::to_string(quantity)});
            isAccepted = isAccepted && call(kind.Row, std::move(row));
        }
        isAccepted = isAccepted && call(kind.Close, {{kind.Document, document}});
        saves_[quantity] = {&kind, document, static_cast<int>(rows.size()), isAccepted, makesOrders};
    }

    /// Keeps a new one, or does something with one of those that he sees.
    void useSetting() {
        const TDbParam type{"a_TYPEDITACE", std::int64_t{1}};
        const TDbParam name{"a_NAZEV", AnsiString(c_Names[oneOf(3)])};
        const TCallResult list = database_->Execute({"MELVARKEDITORNASTAVENIGetList", {type}, true});
        const auto& seen = list.Sets.at(0).Rows;
        if (seen.empty() || oneOf(4) == 0) {
            call("NASTAVENIUlozNove", {name, type, {"a_SDILENE", true}});
            return;
        }
        const TDbParam setting{"a_ID", seen.at(static_cast<std::size_t>(oneOf(static_cast<int>(seen.size())))).at(1)};
        switch (oneOf(3)) {
        case 0:
            call("NASTAVENIPremenuj", {setting, name, {"a_SDILENE", oneOf(2) == 0}});
            break;
        case 1:
            call("NASTAVENINacti", {setting});
            break;
        default:
            call("NASTAVENISmaz", {setting});
        }
    }

    std::unique_ptr<Database> database_;
    std::mt19937 random_;
    std::int64_t quantity_;
    std::map<std::int64_t, Save> saves_; ///< By their quantities.
    std::map<std::string, int> told_;
};

/// Closes a note and an order every now and then and opens them again.
void closeAndOpen(const std::string& url, steady_clock::time_point end) {
    const auto database = openAs(url, "svoboda");
    for (int isOpen = 0; steady_clock::now() < end; isOpen = 1 - isOpen) {
        for (const char* table : {"DODAK", "DODOBJEDNAVKA"}) {
            const std::string document = std::to_string(table == std::string("DODAK") ? c_SameDayNote : c_EarlierOrder);
            database->runScript("update " + std::string(table) + " set OTEVRENO = " + std::to_string(isOpen) +
                                " where ID = " + document);
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

/// Where the lines of one quantity are.
struct Stored {
    std::set<std::int64_t> Documents;
    std::vector<std::int64_t> Places;
};

std::map<std::int64_t, Stored> storedLines(Database& database, const Kind& kind) {
    std::map<std::int64_t, Stored> stored;
    const TResultTable lines = database.Query("select " + std::string(kind.Of) +
                                              ", PORADI, number_text(MNOZSTVI) from " + kind.Lines + " order by 1, 2");
    for (const std::vector<TDbValue>& line : lines.Rows) {
        const std::string quantity = std::get<AnsiString>(line.at(2));
        if (quantity.size() < std::to_string(c_QuantitiesOfOne).size() || quantity.find(',') != quantity.npos) {
            continue; // was there before
        }
        Stored& found = stored[std::stoll(quantity)];
        found.Documents.insert(std::get<std::int64_t>(line.at(0)));
        found.Places.push_back(std::get<std::int64_t>(line.at(1)));
    }
    return stored;
}

bool isRight(const Save& save, const Stored& stored) {
    const auto lines = static_cast<std::size_t>(save.IsAcknowledged ? save.Lines : 0);
    if (stored.Places.size() != lines || lines == 0 || save.MakesOrders) {
        return stored.Places.size() == lines;
    }
    return stored.Documents == std::set<std::int64_t>{save.Document} &&
           stored.Places.back() - stored.Places.front() + 1 == static_cast<std::int64_t>(lines);
}

std::string told(std::int64_t quantity, const Stored& stored) {
    return std::to_string(quantity) + " has " + std::to_string(stored.Places.size()) + " lines in " +
           std::to_string(stored.Documents.size()) + " documents";
}

/// What an order line says of what has come on it, when that is not the sum of its notes' lines.
std::string otherThanDelivered(Database& database, const OrderLine& line) {
    std::int64_t sum = 0;
    const std::string of = std::string("number_text(MNOZSTVI) from DODAKPOL where DOBSID = ") + line.Id;
    for (const std::vector<TDbValue>& row : database.Query("select " + of).Rows) {
        sum += std::stoll(std::get<AnsiString>(row.at(0)));
    }
    const std::string delivered =
        rows(database, std::string("select number_text(DODANO) from DODOBJPOL where ID = ") + line.Id);
    return delivered == std::to_string(sum)
               ? std::string()
               : std::string(line.Id) + " says " + delivered + " of " + std::to_string(sum);
}

/// Holds what the clerks were told against what is there.
void check(ClerksSweepResult& result, const std::vector<std::unique_ptr<Clerk>>& clerks, Database& database) {
    std::map<const Kind*, std::map<std::int64_t, Stored>> stored;
    for (const Kind* kind : {&c_Note, &c_OrderOrTemplate}) {
        stored[kind] = storedLines(database, *kind);
    }
    for (const auto& clerk : clerks) {
        for (const auto& [quantity, save] : clerk->saves()) {
            const Stored found = std::move(stored[save.Of][quantity]);
            stored[save.Of].erase(quantity);
            result.Saved += save.IsAcknowledged ? 1 : 0;
            result.Lines += save.IsAcknowledged ? save.Lines : 0;
            if (!isRight(save, found)) {
                result.Wrong.push_back(told(quantity, found) + (save.IsAcknowledged ? ", saved" : ", refused"));
            }
        }
        for (const auto& [code, count] : clerk->told()) {
            result.Told[code] += count;
            if (!c_Understood.contains(code)) {
                result.Wrong.push_back("told " + code + ", " + std::to_string(count) + " times");
            }
        }
    }
    for (const auto& [kind, left] : stored) {
        for (const auto& [quantity, lines] : left) {
            result.Wrong.push_back(told(quantity, lines) + ", of nobody");
        }
    }
    for (const OrderLine& line : c_OrderLines) {
        if (const std::string differs = otherThanDelivered(database, line); !differs.empty()) {
            result.Wrong.push_back(differs);
        }
    }
}

} // namespace

ClerksSweepResult sweepClerks(Engine engine, int clerks, std::chrono::milliseconds time, unsigned seed) {
    const std::string url = newDatabaseUrl(engine);
    const auto database = openAs(url, "svoboda");
    addContractCompany(*database);
    database->runScript("update DODOBJPOL set MNOZSTVI = '100000000000000.5' where ID in (401, 402)");

    std::vector<std::unique_ptr<Clerk>> all;
    for (int number = 0; number < clerks; ++number) {
        all.push_back(std::make_unique<Clerk>(url, number, seed));
    }
    const auto end = steady_clock::now() + time;
    std::vector<std::future<void>> work;
    work.push_back(std::async(std::launch::async, [&] { closeAndOpen(url, end); }));
    for (const auto& clerk : all) {
        work.push_back(std::async(std::launch::async, [&clerk, end] { clerk->workUntil(end); }));
    }
    for (std::future<void>& each : work) {
        each.get();
    }

    ClerksSweepResult result;
    check(result, all, *database);
    return result;
}

} // namespace refhost
