#include "refhost/dbcheck/DatabaseContract.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <stdexcept>

namespace refhost {

namespace {

constexpr std::string_view c_Prefix = "MELVARKEDITOR";
constexpr std::string_view c_Prices = "the prices";

std::vector<std::string> splitAt(std::string_view text, std::string_view separator) {
    std::vector<std::string> parts;
    for (std::size_t end = text.find(separator); end != text.npos; end = text.find(separator)) {
        parts.emplace_back(text.substr(0, end));
        text.remove_prefix(end + separator.size());
    }
    parts.emplace_back(text);
    return parts;
}

/// The type that stands behind a name; a text when none does.
std::string typeBehind(std::string_view rest) {
    for (const std::string_view type : {"integer", "boolean"}) {
        if (rest.starts_with(' ') && rest.substr(1).starts_with(type)) {
            return std::string(type);
        }
    }
    return "text";
}

/// The sixteen names that the page's introduction lists once.
std::vector<std::string> priceColumns() {
    constexpr std::string_view c_Introduction = "*The prices* are";
    const std::string_view page = proceduresPage();
    const std::size_t start = page.find(c_Introduction);
    if (start == page.npos) {
        throw std::logic_error("the page of procedures does not list the prices");
    }
    return codeOf(page.substr(start, page.find(';', start) - start));
}

/// The names of a cell with their types, up to a remark, which follows a semicolon or a colon. `prefix` belongs to each
/// of the prices.
DeclaredNames namesOf(std::string_view cell, const std::vector<std::string>& prices, const std::string& prefix) {
    const std::string_view list = cell.substr(0, cell.find_first_of(";:"));
    DeclaredNames names;
    for (const std::string& entry : splitAt(list, ", ")) {
        if (entry == c_Prices) {
            std::ranges::transform(prices, std::back_inserter(names), [&](const std::string& price) {
                return DeclaredName{prefix + price, "text"};
            });
        } else if (const std::vector<std::string> code = codeOf(entry); !code.empty()) {
            names.push_back({code.front(), typeBehind(std::string_view(entry).substr(entry.rfind('`') + 1))});
        }
    }
    return names;
}

ProcedureDeclaration declarationOf(const std::vector<std::string>& row, const std::vector<std::string>& prices) {
    constexpr std::string_view c_Output = "output ";
    ProcedureDeclaration declaration;
    declaration.Inputs = namesOf(row[1], prices, "a_");
    declaration.Sets.emplace();
    if (row[2].starts_with(c_Output)) {
        declaration.Outputs = namesOf(row[2], prices, "");
    } else if (!row[2].starts_with("nothing")) {
        for (const std::string& set : splitAt(row[2], "; then ")) {
            declaration.Sets->push_back(namesOf(set, prices, ""));
        }
    }
    return declaration;
}

DatabaseContract readPage() {
    DatabaseContract contract;
    contract.PriceColumns = priceColumns();
    const auto add = [&](const std::vector<std::string>& row) {
        std::string name = std::string(c_Prefix) + codeOf(row[0]).front();
        contract.Procedures[name] = declarationOf(row, contract.PriceColumns);
        return name;
    };
    for (const auto& row : pageTable("procedure")) {
        add(row);
    }
    for (const auto& row : pageTable("procedure of an identity")) {
        contract.OfIdentity.insert(add(row));
    }
    for (const auto& row : pageTable("view")) {
        contract.Views[codeOf(row[0]).front()] = namesOf(row[1], contract.PriceColumns, "");
    }
    for (const auto& row : pageTable("query")) {
        contract.Queries.push_back({codeOf(row[0]).front(), namesOf(row[1], contract.PriceColumns, "")});
    }
    for (const auto& row : pageTable("list")) {
        contract.Conditions.push_back({codeOf(row[0]).front(), codeOf(row[1]).front()});
    }
    return contract;
}

} // namespace

std::vector<std::string> codeOf(std::string_view cell) {
    std::vector<std::string> code = splitAt(cell, "`");
    std::vector<std::string> between;
    for (std::size_t i = 1; i + 1 < code.size(); i += 2) {
        between.push_back(std::move(code[i]));
    }
    return between;
}

std::vector<std::vector<std::string>> pageTable(std::string_view heading) {
    const std::string_view page = proceduresPage();
    const std::size_t start = page.find("\n| " + std::string(heading) + " | ");
    if (start == page.npos) {
        throw std::logic_error("the page of procedures has no table of each " + std::string(heading));
    }
    const std::string_view table = page.substr(start + 1, page.find("\n\n", start) - start - 1);
    std::vector<std::vector<std::string>> rows;
    for (const std::string& line : splitAt(table, "\n")) {
        constexpr std::string_view c_Start = "| ";
        constexpr std::string_view c_End = " |";
        if (line.starts_with("| `") && line.ends_with(c_End)) {
            rows.push_back(splitAt(
                std::string_view(line).substr(c_Start.size(), line.size() - c_Start.size() - c_End.size()), " | "));
        }
    }
    return rows;
}

const DatabaseContract& contract() {
    static const DatabaseContract read = readPage();
    return read;
}

} // namespace refhost
