#include "refhost/dbcheck/Exercise.h"

#include "refhost/dbcheck/IdentityExercise.h"
#include "refhost/dbcheck/SavingExercise.h"
#include "refhost/dbcheck/SettingsExercise.h"

#include <algorithm>

namespace refhost {

namespace {

constexpr ExerciseKind c_Kinds[] = {
    {"DODAK", "Dodak", "a_DODKID", "SCREEN_DODAK_LINES_V", "GetPolozkyByDodak", "a_DODKID", "a_DODKIDMASTER", true},
    {"DODOBJ", "DodObj", "a_DDOBID", "SCREEN_DODOBJ_LINES_V", "GetPolozkyByObjednavka", "a_DDOBIDMASTER", "a_DDOBID",
     false},
    {"DODOBJVZOR", "DodObj", "a_DDOBID", "SCREEN_DODOBJVZOR_LINES_V", "GetPolozkyByObjednavka", "a_DDOBIDMASTER",
     "a_DDOBID", false},
};

/// A document that is open is let in and may be taken up again, one that there is not is neither.
void exerciseOpening(const ExerciseContext& context) {
    const std::string prefix = context.Kind.Prefix;
    const auto with = [&](const char* name, std::int64_t document) {
        return context.First.call(prefix + name, {{context.Kind.DocumentParam, exercisedId(document)}});
    };
    if (const auto opened = with("CheckMaster", context.Document); !opened.accepted()) {
        throw EDatabaseError(*opened.Refusal);
    }
    if (with("CheckMaster", c_NoDocument).accepted()) {
        context.note(FindingKind::MissingDocumentAccepted, prefix + "CheckMaster");
    }
    context.expect(FindingKind::AnswerWrong, prefix + "ObnovData", "a_OBNOVDATA", "1",
                   with("ObnovData", context.Document).value("a_OBNOVDATA"));
    context.expect(FindingKind::AnswerWrong, prefix + "ObnovData", "a_OBNOVDATA", "0",
                   with("ObnovData", c_NoDocument).value("a_OBNOVDATA"));
    if (const auto user = context.First.call(prefix + "Init"); user.value("UZIVATEL").empty()) {
        context.note(FindingKind::AnswerWrong, prefix + "Init", "UZIVATEL", "…");
    }
}

/// Three pieces at ten, a tenth off and no VAT, after the price was typed.
void exerciseRecalculation(const ExerciseContext& context) {
    const auto recalculated = [&](bool isOn, const char* discount) {
        return context.First.call("DodakVypocetCen", {{"a_ZMENENEBUNKY", AnsiString("JEDNCENABBEZSLEVY;")},
                                                      {"a_PREPOCETCEN", isOn},
                                                      {"a_FOCUS", AnsiString("JEDNCENABBEZSLEVY")},
                                                      {"a_JEDNCENABBEZSLEVY", AnsiString("10.00")},
                                                      {"a_SLEVA", AnsiString(discount)},
                                                      {"a_MNOZSTVI", AnsiString("3.0")}});
    };
    struct Cell {
        const char* Column;
        const char* Off; ///< With the switch off: as it was sent, in its one text.
        const char* On;
    };
    constexpr Cell c_Cells[] = {
        {"MNOZSTVI", "3", "3"},          {"SLEVA", "10", "10"},           {"JEDNCENABBEZSLEVY", "10", "10"},
        {"JEDNCENABSESLEVOU", "-", "9"}, {"CENABBEZSLEVY", "-", "30.00"}, {"CENABSESLEVOU", "-", "27.00"},
        {"CENASSESLEVOU", "-", "27.00"},
    };
    const auto off = recalculated(false, "10");
    const auto on = recalculated(true, "10");
    const auto shown = [&](std::string text) {
        std::ranges::replace(text, '.', context.Settings.DecimalSeparator);
        return text;
    };
    for (const Cell& cell : c_Cells) {
        context.expect(FindingKind::AnswerWrong, "DodakVypocetCen", cell.Column, shown(cell.Off),
                       off.value(cell.Column));
        context.expect(FindingKind::AnswerWrong, "DodakVypocetCen", cell.Column, shown(cell.On), on.value(cell.Column));
    }
    if (recalculated(true, "101").accepted()) {
        context.note(FindingKind::DiscountAccepted, "DodakVypocetCen");
    }
}

} // namespace

const ExerciseKind* exerciseKind(std::string_view screen) {
    const auto* const kind = std::ranges::find(c_Kinds, screen, &ExerciseKind::Screen);
    return kind == std::end(c_Kinds) ? nullptr : kind;
}

std::string ExerciseContext::document() const {
    return std::string(Kind.Screen) + " " + std::to_string(Document);
}

void ExerciseContext::note(FindingKind kind, const std::string& procedure, std::string member, std::string expected,
                           std::string found) const {
    Outcome.Found.push_back({kind, procedureName(procedure), std::move(member), std::move(expected), std::move(found)});
}

void ExerciseContext::expect(FindingKind kind, const std::string& procedure, std::string member, std::string expected,
                             std::string found) const {
    if (expected != found) {
        note(kind, procedure, std::move(member), std::move(expected), std::move(found));
    }
}

void exercise(const DatabaseContract& contract, const ExerciseKind& kind, std::int32_t document,
              const TFormatSettings& settings, Database& first, Database& second, ExerciseOutcome& outcome) {
    ExercisedSession firstSession(contract, first, outcome.Found);
    ExercisedSession secondSession(contract, second, outcome.Found);
    const ExerciseContext context{kind, document, settings, firstSession, secondSession, outcome};
    exerciseOpening(context);
    exerciseSaving(context);
    exerciseIdentity(context);
    exerciseSettings(context);
    if (kind.IsRecalculated) {
        exerciseRecalculation(context);
    }
}

} // namespace refhost
