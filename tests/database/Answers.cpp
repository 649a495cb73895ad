#include "tests/database/Answers.h"

#include "host/Exceptions.h"

#include <algorithm>

namespace refhost {

std::string valueText(const TDbValue& value) {
    if (const auto* number = std::get_if<std::int64_t>(&value)) {
        return std::to_string(*number);
    }
    if (const auto* text = std::get_if<AnsiString>(&value)) {
        return *text;
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return *flag ? "true" : "false";
    }
    if (const auto* number = std::get_if<double>(&value)) {
        return "floating " + std::to_string(*number); // no result of the contract is one
    }
    return "-";
}

std::string tableText(const TResultTable& table, const Columns& columns) {
    std::vector<std::size_t> shown;
    for (std::size_t i = 0; i < table.Columns.size(); ++i) {
        if (columns.empty()) {
            shown.push_back(i);
        }
    }
    for (const std::string& column : columns) {
        shown.push_back(static_cast<std::size_t>(std::ranges::find(table.Columns, column) - table.Columns.begin()));
    }
    std::string text;
    for (const std::vector<TDbValue>& row : table.Rows) {
        text += text.empty() ? "" : "\n";
        for (std::size_t i = 0; i < shown.size(); ++i) {
            text += (i == 0 ? "" : " | ") + valueText(row.at(shown[i]));
        }
    }
    return text;
}

std::string answerText(const TCallResult& result, const Columns& columns) {
    std::string text;
    for (std::size_t i = 0; i < result.Sets.size(); ++i) {
        text += (i == 0 ? "" : "\n\n") + tableText(result.Sets[i], i == 0 ? columns : Columns{});
    }
    for (const TDbParam& output : result.Outputs) {
        text += (text.empty() ? "" : "\n") + output.Name + " = " + valueText(output.Value);
    }
    return text;
}

std::string answer(Database& database, const std::string& procedure, const Parameters& parameters,
                   const Columns& columns) {
    try {
        return answerText(database.Execute({procedure, parameters, true}), columns);
    } catch (const EDatabaseError& error) {
        return error.Code() + " " + error.Message();
    }
}

std::string rows(Database& database, const std::string& sql) {
    try {
        return tableText(database.Query(sql), {});
    } catch (const EDatabaseError& error) {
        return error.Code() + " " + error.Message();
    }
}

} // namespace refhost
