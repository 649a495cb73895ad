#include "refhost/commands/DataCommands.h"

#include "host/AsciiCase.h"
#include "host/DataSet.h"
#include "host/Exceptions.h"
#include "refhost/ColumnTitles.h"
#include "refhost/ErrorDisplay.h"
#include "refhost/Json.h"
#include "refhost/Languages.h"
#include "refhost/screens/DocumentDataSet.h"
#include "refhost/screens/Screens.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cctype>

namespace refhost {

namespace {

/// The value as a field shows it, or null.
TDbValue fieldText(const TDbValue& value, const TFormatSettings& settings) {
    const TField field({}, value, settings);
    return field.IsNull() ? TDbValue() : TDbValue(field.AsString());
}

bool everyColumn(std::string_view) {
    return true;
}

std::string rowJson(const TResultTable& table, const std::vector<TDbValue>& row, const TFormatSettings& settings,
                    bool (*isWanted)(std::string_view)) {
    JsonObject object;
    for (std::size_t column = 0; column < table.Columns.size(); ++column) {
        if (isWanted(table.Columns[column])) {
            object.add(melvark::UpperAscii(table.Columns[column]), fieldText(row[column], settings));
        }
    }
    return object.text();
}

void printResult(const TCallResult& result, const CommandContext& context) {
    for (std::size_t set = 0; set < result.Sets.size(); ++set) {
        for (const auto& row : result.Sets[set].Rows) {
            context.output << JsonObject()
                                  .add("set", static_cast<std::int64_t>(set + 1))
                                  .addJson("row", rowJson(result.Sets[set], row, context.settings, everyColumn))
                                  .text()
                           << '\n';
        }
    }
    if (result.Outputs.empty()) {
        return;
    }
    JsonObject outputs;
    for (const TDbParam& output : result.Outputs) {
        outputs.add(melvark::UpperAscii(output.Name), fieldText(output.Value, context.settings));
    }
    context.output << JsonObject().addJson("out", outputs.text()).text() << '\n';
}

void callProcedure(const CommandLine& commandLine, const CommandContext& context) {
    TProcedureCall call{.Name = commandLine.subject, .Params = {}, .Open = true};
    for (const auto& [name, value] : commandLine.arguments) {
        call.Params.push_back({name, value});
    }
    printResult(context.connection.Execute(call), context);
}

bool isBlank(const std::string& line) {
    return std::all_of(line.begin(), line.end(), [](unsigned char each) { return std::isspace(each) != 0; });
}

void callBatch(const CommandLine& commandLine, const CommandContext& context) {
    std::int64_t done = 0;
    for (std::string line; std::getline(context.input, line);) {
        if (isBlank(line)) {
            continue;
        }
        try {
            printResult(context.connection.Execute(readBatchCall(line, commandLine.subject)), context);
        } catch (const Exception&) {
            const ErrorReport report = describeError(std::current_exception(), context.languages);
            context.output << JsonObject().add("error", report.sentence).text() << '\n';
        }
        context.output << JsonObject().add("done", ++done).text() << std::endl;
    }
}

void printQuery(const CommandLine& commandLine, const CommandContext& context) {
    const TResultTable table = context.connection.Query(commandLine.subject);
    for (const auto& row : table.Rows) {
        context.output << rowJson(table, row, context.settings, everyColumn) << '\n';
    }
}

void printDocuments(const CommandLine& commandLine, const CommandContext& context) {
    const ScreenDefinition& screen = findScreen(commandLine.subject, context.languages);
    const TResultTable table = readDocuments(context.connection, screen);
    for (std::size_t row = 0; row < table.Rows.size(); ++row) {
        const DocumentDataSet document(table, static_cast<int>(row), context.settings);
        const TField supplier = document.FieldByName("DODAVATEL");
        context.output << JsonObject()
                              .add("id", std::int64_t{document.FieldByName("_ID").AsInteger()})
                              .add("number", document.FieldByName("CISLO").AsString())
                              .add("supplier", supplier.IsNull() ? TDbValue() : TDbValue(supplier.AsString()))
                              .add("open", document.FieldByName("_OTEVRENO").AsBoolean())
                              .add("lines", std::int64_t{document.FieldByName("POCETPOLOZEK").AsInteger()})
                              .text()
                       << '\n';
    }
}

void printLines(const CommandLine& commandLine, const CommandContext& context) {
    const ScreenDefinition& screen = findScreen(commandLine.subject, context.languages);
    if (readDocument(context.connection, screen, commandLine.document).Rows.empty()) {
        throw EHostError(context.languages.label(texts::unknownDocument).arg(commandLine.document).toStdString());
    }
    const TResultTable table = readLines(context.connection, screen, commandLine.document);
    for (const auto& row : table.Rows) {
        context.output << rowJson(table, row, context.settings, isShownColumn) << '\n';
    }
}

struct CommandRow {
    Command command;
    void (*run)(const CommandLine&, const CommandContext&);
};

constexpr std::array c_commands{
    CommandRow{Command::Call, callProcedure}, CommandRow{Command::Batch, callBatch},
    CommandRow{Command::Query, printQuery},   CommandRow{Command::Documents, printDocuments},
    CommandRow{Command::Show, printLines},
};

} // namespace

void runDataCommand(const CommandLine& commandLine, const CommandContext& context) {
    const auto row = std::find_if(c_commands.begin(), c_commands.end(),
                                  [&](const CommandRow& each) { return each.command == commandLine.command; });
    row->run(commandLine, context);
    context.output.flush();
}

} // namespace refhost
