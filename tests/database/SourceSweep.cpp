#include "tests/database/SourceSweep.h"

#include "host/Exceptions.h"

#include <map>
#include <set>
#include <span>

namespace refhost {

namespace {

/// A document that is filled, as the workflow knows it from its screen.
struct Document {
    std::int64_t Id = 0;
    std::int64_t Warehouse = 0;
    std::int64_t Supplier = 0; ///< 0 for none
    std::string Moment;        ///< as the host writes a moment
};

/// A candidate of a list: its id and what the list shows.
struct Candidate {
    std::int64_t Id = 0;
    std::string Label;
};

/// One kind of source for one kind of document: the list with its condition, in which the words in braces stand for
/// what is known of the document, and the check with its parameters.
struct SourceKind {
    const char* List;
    const char* Label;
    const char* Condition;
    const char* Check;
    const char* TextParameter;
    const char* IdParameter;
};

constexpr SourceKind c_SourcesOfNotes[] = {
    {"DODOBJEDNAVKA_NORMAL_V", "CISLO",
     "V_MELVARKEDITORDodakCheckZdrojObjednavka(_ID, _SKLDID, _DODVID, {document}, {supplier}, _DODANO)=1",
     "MELVARKEDITORDodakCheckZdrojObjednavka", "a_CISLO", "a_DDOBID"},
    {"DODAK_NORMAL_V", "CISLO", "V_MELVARKEDITORDodakCheckZdrojDodak(_ID, _DODVID, {document}, {supplier})=1",
     "MELVARKEDITORDodakCheckZdrojDodak", "a_DODAKCISLO", "a_DODKID"},
};

constexpr SourceKind c_SourcesOfOrders[] = {
    {"DODOBJEDNAVKAVZOR_NORMAL_V", "CISLO",
     "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, {document}, {warehouse}, {supplier})=1",
     "MELVARKEDITORDodObjCheckZdrojObjednavkaVzor", "a_CISLO", "a_DDOBID"},
    {"DODOBJEDNAVKA_NORMAL_V", "CISLO",
     "V_MELVARKEDITORDodObjCheckZdrojObjednavkaVzor(_ID, _SKLDID, _DODVID, {document}, {warehouse}, {supplier})=1",
     "MELVARKEDITORDodObjCheckZdrojObjednavka", "a_CISLO", "a_DDOBID"},
    {"DODAK_NORMAL_V", "CISLO",
     "V_MELVARKEDITORDodObjCheckZdrojDodak(_ID, _DODVID, {document}, {warehouse}, {supplier})=1",
     "MELVARKEDITORDodObjCheckZdrojDodak", "a_CISLO", "a_DODKID"},
    {"DODAVATEL_NORMAL_V", "JMENO", "V_MELVARKEDITORDodObjCheckZdrojDodCenik(_ID, {document}, -1, -1, '{moment}')=1",
     "MELVARKEDITORDodObjCheckZdrojDodCenik", "a_JMENO", "a_DODVID"},
    {"DODAVATEL_NORMAL_V", "JMENO",
     "V_MELVARKEDITORDodObjCheckZdrojDodavky(_ID, {document}, -1, -1, '{moment}', "
     "V_GetGlobalParam('SKLAD','POCETMESICUDODAVEK'))=1",
     "MELVARKEDITORDodObjCheckZdrojDodavky", "a_JMENO", "a_DODVID"},
};

std::string replaced(std::string text, std::string_view word, const std::string& value) {
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + value.size())) {
        text.replace(at, word.size(), value);
    }
    return text;
}

std::string conditionFor(const SourceKind& kind, const Document& document) {
    std::string condition = replaced(kind.Condition, "{document}", std::to_string(document.Id));
    condition = replaced(std::move(condition), "{warehouse}", std::to_string(document.Warehouse));
    condition = replaced(std::move(condition), "{supplier}", std::to_string(document.Supplier));
    return replaced(std::move(condition), "{moment}", document.Moment);
}

template <typename T>
std::vector<T> everyNth(const std::vector<T>& all, std::size_t step) {
    std::vector<T> taken;
    for (std::size_t i = 0; i < all.size(); i += step) {
        taken.push_back(all[i]);
    }
    return taken;
}

std::vector<Document> documents(Database& database, const std::string& sql, std::size_t step) {
    std::vector<Document> all;
    for (const auto& row : database.Query(sql).Rows) {
        all.push_back({std::get<std::int64_t>(row[0]), std::get<std::int64_t>(row[1]), std::get<std::int64_t>(row[2]),
                       std::get<AnsiString>(row[3])});
    }
    return everyNth(all, step);
}

std::vector<Candidate> candidates(Database& database, const SourceKind& kind, const std::string& condition) {
    std::vector<Candidate> all;
    const std::string sql =
        std::string("select _ID, ") + kind.Label + " from " + kind.List + " where " + condition + " order by _ID";
    for (const auto& row : database.Query(sql).Rows) {
        all.push_back({std::get<std::int64_t>(row[0]), std::get<AnsiString>(row[1])});
    }
    return all;
}

class Sweep {
public:
    Sweep(Database& database, std::size_t candidateStep) : database_(database), candidateStep_(candidateStep) {}

    void run(const std::vector<Document>& documents, std::span<const SourceKind> kinds, const char* masterParameter) {
        for (const SourceKind& kind : kinds) {
            const std::vector<Candidate> all = candidates(database_, kind, "1 = 1");
            for (const Document& document : documents) {
                compare(document, kind, all, masterParameter);
            }
        }
    }

    const SourceSweepResult& result() const { return result_; }

private:
    void compare(const Document& document, const SourceKind& kind, const std::vector<Candidate>& all,
                 const char* masterParameter) {
        std::set<std::int64_t> offered;
        std::map<std::string, std::set<std::int64_t>> named;
        for (const Candidate& candidate : candidates(database_, kind, conditionFor(kind, document))) {
            offered.insert(candidate.Id);
            named[candidate.Label].insert(candidate.Id);
        }
        for (const Candidate& candidate : everyNth(all, candidateStep_)) {
            ++result_.Pairs;
            const TDbParam master{masterParameter, document.Id};
            const std::int64_t byId =
                taken({kind.Check, {master, {kind.TextParameter, {}}, {kind.IdParameter, candidate.Id}}, true});
            expect(byId, offered.contains(candidate.Id) ? candidate.Id : 0, document, kind, candidate, "by its id");
            const std::set<std::int64_t>& bearers = named[candidate.Label];
            const std::int64_t byText =
                taken({kind.Check, {master, {kind.TextParameter, candidate.Label}, {kind.IdParameter, {}}}, true});
            expect(byText, bearers.size() == 1 ? *bearers.begin() : 0, document, kind, candidate, "by its text");
        }
    }

    /// The id that a check gives, 0 when it refuses.
    std::int64_t taken(const TProcedureCall& check) {
        try {
            return std::get<std::int64_t>(database_.Execute(check).Sets.at(0).Rows.at(0).at(0));
        } catch (const EDatabaseError& error) {
            if (!error.Code().starts_with("ML02")) {
                throw; // no refusal of a source
            }
            return 0;
        }
    }

    void expect(std::int64_t found, std::int64_t wanted, const Document& document, const SourceKind& kind,
                const Candidate& candidate, const char* way) {
        if (found != wanted) {
            result_.Differences.push_back(std::string(kind.Check) + " for document " + std::to_string(document.Id) +
                                          ": candidate " + std::to_string(candidate.Id) + " (" + candidate.Label +
                                          ") " + way + " gives " + std::to_string(found) + ", its list says " +
                                          std::to_string(wanted));
        }
    }

    Database& database_;
    std::size_t candidateStep_;
    SourceSweepResult result_;
};

} // namespace

SourceSweepResult sweepSources(Database& database, const SourceSweepSteps& steps) {
    Sweep sweep(database, steps.Candidates);
    sweep.run(
        documents(database, "select _ID, _SKLDID, _DODVID, DATUM from DODAK_NORMAL_V order by _ID", steps.Documents),
        c_SourcesOfNotes, "a_DODKIDMASTER");
    sweep.run(documents(database,
                        "select _ID, _SKLDID, coalesce(_DODVID, 0), OBJEDNANIDC from DODOBJEDNAVKA_NORMAL_V "
                        "order by _ID",
                        steps.Documents),
              c_SourcesOfOrders, "a_DDOBIDMASTER");
    sweep.run(documents(database,
                        "select _ID, _SKLDID, coalesce(_DODVID, 0), moment_text(now_moment()) "
                        "from DODOBJEDNAVKAVZOR_NORMAL_V order by _ID",
                        steps.Documents),
              c_SourcesOfOrders, "a_DDOBIDMASTER");
    return sweep.result();
}

} // namespace refhost
