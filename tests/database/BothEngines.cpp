#include "tests/database/BothEngines.h"

#include "host/Exceptions.h"
#include "tests/database/Answers.h"

#include <algorithm>
#include <sstream>

namespace refhost {

namespace {

/// Failures of a connection name its file or server: only their code can be the same.
constexpr std::string_view c_FirstConnectionCode = "ML910";
constexpr std::string_view c_LastCallCode = "ML918"; // to ML920 they are about the call again
constexpr std::string_view c_FirstFileCode = "ML921";

bool namesTheDatabase(std::string_view code) {
    return (code >= c_FirstConnectionCode && code < c_LastCallCode) || code >= c_FirstFileCode;
}

struct Answer {
    std::string Text;
    std::optional<TCallResult> Result;
};

Answer ask(Database& database, const TProcedureCall& call) {
    try {
        TCallResult result = database.Execute(call);
        database.awaitAnswers();
        std::string text = answerText(result);
        return {std::move(text), std::move(result)};
    } catch (const EDatabaseError& error) {
        return {error.Code() + (namesTheDatabase(error.Code()) ? "" : " " + error.Message()), {}};
    }
}

std::string sortedLines(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    std::ranges::sort(lines);
    std::string sorted;
    for (const std::string& line : lines) {
        sorted += line + "\n";
    }
    return sorted;
}

std::string callText(const TProcedureCall& call) {
    std::string text = call.Name;
    for (const TDbParam& parameter : call.Params) {
        text += " " + parameter.Name + "=" + valueText(parameter.Value).substr(0, 80);
    }
    return text;
}

/// Around the first place at which two texts differ.
std::pair<std::string, std::string> aroundDifference(const std::string& one, const std::string& other) {
    constexpr std::size_t c_Before = 60;
    constexpr std::size_t c_Shown = 300;
    const auto place = std::ranges::mismatch(one, other).in1 - one.begin();
    const std::size_t start =
        static_cast<std::size_t>(place) - std::min<std::size_t>(static_cast<std::size_t>(place), c_Before);
    return {one.substr(start, c_Shown), other.substr(start, c_Shown)};
}

/// Names in place of the identifiers that an engine gives to what is never shown.
constexpr const char* c_Contents[] = {
    "select CISLO, DODAVATEL, STAV, POCETPOLOZEK, CENACELKEM from SCREEN_DODAK_V",
    "select _ID, CISLO, OBJEDNANIDC, DODAVATEL, SKLAD, STAV, POCETPOLOZEK from SCREEN_DODOBJ_V",
    "select _ID, CISLO, NAZEV, DODAVATEL, SKLAD, STAV, POCETPOLOZEK from SCREEN_DODOBJVZOR_V",
    "select * from SCREEN_DODAK_LINES_V",
    "select * from SCREEN_DODOBJ_LINES_V",
    "select * from SCREEN_DODOBJVZOR_LINES_V",
    "select DDOBID, PORADI, SKPLID, DODVID, number_text(DODANO) as DODANO, KOMPLETNI from DODOBJPOL",
    "select DODKID, DODKIDZDROJ, DDOBIDZDROJ from DODAKZDROJ",
    "select DDOBID, DODKIDZDROJ, DDOBIDZDROJ from DODOBJZDROJ",
    "select s.ID, u.JMENO, s.TYPEDITACE, s.NAZEV, s.KOMENTAR, s.SDILENE, s.DATA "
    "from EDITORNASTAVENI s join UZIVATEL u on u.ID = s.UZIVID",
    "select u.JMENO, d.TYPEDITACE, d.NASTAVENIID from EDITORNASTAVENIDEF d join UZIVATEL u on u.ID = d.UZIVID",
    "select u.JMENO, o.TYPEDITACE, o.DATA from EDITOROKNO o join UZIVATEL u on u.ID = o.UZIVID",
};

} // namespace

void BothEngines::openSessions(const std::string& user) {
    embedded_ = openAs(embeddedUrl_, user);
    server_ = openAs(serverUrl_, user);
}

std::optional<TCallResult> BothEngines::call(const TProcedureCall& call) {
    ++calls_;
    Answer embedded = ask(*embedded_, call);
    const Answer server = ask(*server_, call);
    expectEqual(callText(call), embedded.Text, server.Text);
    refused_ += embedded.Result ? 0 : 1;
    return std::move(embedded.Result);
}

void BothEngines::query(const std::string& sql) {
    expectEqual(sql, sortedLines(rows(*embedded_, sql)), sortedLines(rows(*server_, sql)));
}

void BothEngines::compareContents() {
    for (const char* sql : c_Contents) {
        query(sql);
    }
}

std::string BothEngines::report() const {
    constexpr std::size_t c_Shown = 20;
    std::string text;
    for (std::size_t i = 0; i < differences_.size() && i < c_Shown; ++i) {
        text += differences_[i] + "\n";
    }
    return text;
}

void BothEngines::expectEqual(const std::string& what, const std::string& embedded, const std::string& server) {
    if (embedded == server) {
        return;
    }
    const auto [one, other] = aroundDifference(embedded, server);
    differences_.push_back(subject_ + ": " + what + "\n  embedded: " + one + "\n  server:   " + other);
}

} // namespace refhost
