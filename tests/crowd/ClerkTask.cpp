#include "tests/crowd/ClerkTask.h"

#include <fstream>
#include <random>
#include <span>
#include <sstream>
#include <stdexcept>
#include <variant>

namespace crowd {

namespace {

constexpr int c_FirstQuantity = 700'000; ///< No document of the sample has such a one.
constexpr int c_SharedOneIn = 8;

/// A document of the sample that may be a source.
struct Source {
    std::int64_t Id;
    std::string Number;
    std::int64_t Supplier;
    std::int64_t Warehouse;
    int Lines;
};

/// How the documents of a screen are stored.
struct Screen {
    const char* Table;
    const char* LineTable;
    const char* Document; ///< The column of the lines that names it.
    const char* Condition;
};
constexpr Screen c_Notes{"DODAK", "DODAKPOL", "DODKID", "true"};
constexpr Screen c_Orders{"DODOBJEDNAVKA", "DODOBJPOL", "DDOBID",
                          "VZOR = 0 and DODVID is not null and not exists "
                          "(select from DODOBJPOL p where p.DDOBID = d.ID and p.DODVID <> d.DODVID)"};

/// A way to fill a document. Delivered from one order may be only once, so that a copy of it is made for each task.
struct Way {
    const char* Params;
    const Screen& Target;
    const Screen& From;
    bool CopiesSource;
};
constexpr Way c_Ways[] = {
    {"DODAK,DODAK", c_Notes, c_Notes, false},
    {"DODAK,DODOBJ", c_Notes, c_Orders, true},
    {"DODOBJ,OBJEDNAVKA", c_Orders, c_Orders, false},
};

std::int64_t number(const TDbValue& value) {
    return std::get<std::int64_t>(value);
}

/// Those with a number of their own and 5 to 40 lines.
std::vector<Source> sourcesOf(refhost::Database& company, const Screen& screen) {
    const std::string table = screen.Table;
    std::vector<Source> sources;
    for (const auto& row : company
                               .Query("select d.ID, d.CISLO::text, d.DODVID, d.SKLDID, "
                                      "(select count(*) from " +
                                      std::string(screen.LineTable) + " p where p." + screen.Document +
                                      " = d.ID)::integer as LINES from " + table + " d where " + screen.Condition +
                                      " and not exists (select from " + table +
                                      " e where e.CISLO = d.CISLO and e.ID <> d.ID) order by d.ID")
                               .Rows) {
        const auto lines = static_cast<int>(number(row[4]));
        if (lines >= 5 && lines <= 40) {
            sources.push_back({number(row[0]), std::get<AnsiString>(row[1]), number(row[2]), number(row[3]), lines});
        }
    }
    if (sources.empty()) {
        throw std::runtime_error("the sample has no source in " + table);
    }
    return sources;
}

/// Makes documents with identifiers of its own, behind those that are there; no note has that of an order.
class Documents {
public:
    explicit Documents(refhost::Database& company) : company_(company) {
        const auto row =
            company_
                .Query("select greatest((select max(ID) from DODAK), (select max(ID) from DODOBJEDNAVKA)), "
                       "current_date::text")
                .Rows.front();
        last_ = number(row[0]);
        today_ = std::get<AnsiString>(row[1]);
    }

    std::int64_t newDocument(const Screen& screen, const Source& like) {
        const AnsiString own = "Z" + std::to_string(++last_);
        if (screen.Table == c_Notes.Table) {
            notes_.push_back({last_, own, AnsiString(today_), like.Supplier, like.Warehouse});
        } else {
            orders_.push_back(
                {last_, std::int64_t{0}, own, AnsiString(today_ + " 08:00:00"), like.Supplier, like.Warehouse});
        }
        return last_;
    }
    /// An order with the same lines, nothing of which is delivered.
    Source copyOf(const Source& order) {
        Source copy = order;
        copy.Id = newDocument(c_Orders, order);
        copy.Number = "Z" + std::to_string(copy.Id);
        copies_ += "insert into DODOBJPOL (DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI) select " +
                   std::to_string(copy.Id) +
                   ", PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI from DODOBJPOL where DDOBID = " +
                   std::to_string(order.Id) + ";";
        return copy;
    }
    void store() {
        company_.insertRows("DODAK", std::vector<std::string>{"ID", "CISLO", "DATUM", "DODVID", "SKLDID"}, notes_);
        company_.insertRows("DODOBJEDNAVKA",
                            std::vector<std::string>{"ID", "VZOR", "CISLO", "OBJEDNANIDC", "DODVID", "SKLDID"},
                            orders_);
        company_.runScript(copies_ + "analyze");
    }

private:
    refhost::Database& company_;
    std::int64_t last_ = 0;
    std::string today_;
    std::vector<std::vector<TDbValue>> notes_;
    std::vector<std::vector<TDbValue>> orders_;
    std::string copies_;
};

} // namespace

int quantityOf(int clerk) {
    return c_FirstQuantity + clerk;
}

std::vector<std::vector<ClerkTask>> makeTasks(refhost::Database& company, int clerks, int tasksOfEach, unsigned seed) {
    std::mt19937 random(seed);
    const auto below = [&](std::size_t count) { return random() % count; };
    const std::vector<Source> notes = sourcesOf(company, c_Notes);
    const std::vector<Source> orders = sourcesOf(company, c_Orders);
    Documents documents(company);
    std::vector<std::vector<ClerkTask>> all(static_cast<std::size_t>(clerks));
    for (int i = 0; i < tasksOfEach; ++i) {
        const Source* shared = nullptr;
        Source lastCopy{};
        for (std::vector<ClerkTask>& tasks : all) {
            const bool isColleagues = shared != nullptr;
            const bool isEarly = tasks.size() < std::size(c_Ways);
            const std::size_t way = isColleagues ? 1 : (isEarly ? tasks.size() : below(std::size(c_Ways)));
            const auto& [params, target, from, copiesSource] = c_Ways[way];
            const std::vector<Source>& candidates = from.Table == c_Notes.Table ? notes : orders;
            Source source = isColleagues ? *shared : candidates[below(candidates.size())];
            shared = nullptr;
            if (copiesSource && !isColleagues) {
                source = lastCopy = documents.copyOf(source);
                shared = !isEarly && below(c_SharedOneIn) == 0 ? &lastCopy : nullptr;
            }
            tasks.push_back({params, static_cast<std::int32_t>(documents.newDocument(target, source)), source.Number,
                             source.Lines, isColleagues || shared != nullptr});
        }
    }
    documents.store();
    return all;
}

std::vector<std::string> wrongDocuments(refhost::Database& company, int clerk, const std::vector<ClerkTask>& saved) {
    std::vector<std::string> wrong;
    for (const ClerkTask& task : saved) {
        const bool isNote = task.Params.starts_with("DODAK,");
        const Screen& screen = isNote ? c_Notes : c_Orders;
        const std::string own = std::to_string(quantityOf(clerk));
        const auto row = company
                             .Query("select count(*)::integer, count(*) filter (where MNOZSTVI = " + own +
                                    ")::integer, count(*) filter (where MNOZSTVI > " + std::to_string(c_FirstQuantity) +
                                    " and MNOZSTVI <> " + own + ")::integer from " + screen.LineTable + " where " +
                                    screen.Document + " = " + std::to_string(task.Document))
                             .Rows.front();
        // An order's line has three quantities, each of which becomes a line, so that only a note's can be counted.
        // What a colleague has left of an order nobody knows.
        const bool isWhole = task.IsShared || ((!isNote || number(row[0]) == task.Lines) && number(row[1]) == 1);
        if (!isWhole || number(row[2]) != 0) {
            wrong.push_back(task.Params + " " + std::to_string(task.Document) + " of clerk " + std::to_string(clerk) +
                            ": " + std::to_string(number(row[0])) + " lines of " + std::to_string(task.Lines) + ", " +
                            std::to_string(number(row[1])) + " of his own quantity, " + std::to_string(number(row[2])) +
                            " of a colleague's");
        }
    }
    return wrong;
}

void writeTasks(const std::filesystem::path& file, const std::vector<ClerkTask>& tasks) {
    std::ofstream out(file);
    for (const ClerkTask& task : tasks) {
        out << task.Params << ' ' << task.Document << ' ' << task.Lines << ' ' << task.IsShared << ' ' << task.Source
            << '\n';
    }
}

std::vector<ClerkTask> readTasks(const std::filesystem::path& file) {
    std::vector<ClerkTask> tasks;
    std::ifstream in(file);
    for (ClerkTask task; in >> task.Params >> task.Document >> task.Lines >> task.IsShared >> std::ws &&
                         std::getline(in, task.Source);) {
        tasks.push_back(task);
    }
    return tasks;
}

} // namespace crowd
