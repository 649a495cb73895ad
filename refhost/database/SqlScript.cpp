#include "refhost/database/SqlScript.h"

#include "host/ValueText.h"

#include <algorithm>
#include <stdexcept>

namespace refhost {

namespace {

/// The rest of a line that starts with `prefix`, trimmed; empty when it starts otherwise.
std::string_view after(std::string_view line, std::string_view prefix) {
    return line.starts_with(prefix) ? TrimText(line.substr(prefix.size())) : std::string_view();
}

/// Takes the first line off `text`, without its line break.
std::string_view takeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

SqlScript::Parameter readParameter(std::string_view declaration, std::string_view path) {
    const std::size_t blank = std::min(declaration.find(' '), declaration.size());
    const std::string_view kind = TrimText(declaration.substr(blank));
    SqlScript::Parameter parameter{std::string(declaration.substr(0, blank)), ParameterKind::Text};
    if (kind == "integer") {
        parameter.Kind = ParameterKind::Integer;
    } else if (kind == "boolean") {
        parameter.Kind = ParameterKind::Boolean;
    } else if (!kind.empty() && kind != "text") {
        throw std::logic_error(std::string(path) + ": unknown kind of parameter: " + std::string(kind));
    }
    return parameter;
}

std::vector<std::string> readNames(std::string_view list) {
    std::vector<std::string> names;
    while (!list.empty()) {
        const std::size_t comma = std::min(list.find(','), list.size());
        names.emplace_back(TrimText(list.substr(0, comma)));
        list.remove_prefix(std::min(comma + 1, list.size()));
    }
    return names;
}

std::string_view partText(std::string_view name, std::string_view path, std::span<const SqlFile> files) {
    const std::string partPath = "parts/" + std::string(name) + ".sql";
    const auto part = std::ranges::find(files, std::string_view(partPath), &SqlFile::Path);
    if (part == files.end()) {
        throw std::logic_error(std::string(path) + ": there is no " + partPath);
    }
    return part->Text;
}

/// Takes a line of the header that declares something; false for any other line.
bool takeDeclaration(SqlScript& script, std::string_view line, std::string_view path) {
    if (const auto input = after(line, "-- in:"); !input.empty()) {
        script.Inputs.push_back(readParameter(input, path));
    } else if (const auto output = after(line, "-- out:"); !output.empty()) {
        script.Outputs.emplace_back(output);
    } else if (const auto columns = after(line, "-- returns:"); !columns.empty()) {
        script.Results.push_back(readNames(columns));
    } else if (after(line, "-- begins:") == "a save") {
        script.Save.Begins = true;
    } else if (after(line, "-- answer:") == "may come later") {
        script.Save.AnswerMayComeLater = true;
    } else if (after(line, "-- after failure:") == "staging refused") {
        script.Save.FailureRefusesStaging = true;
    } else {
        return false;
    }
    return true;
}

/// Whether a comment has the form of a declaration: "-- word:" or "-- two words:". What refuses what is told so too.
bool looksLikeDeclaration(std::string_view line) {
    const std::string_view words = TrimText(line.substr(0, std::min(line.find(':'), line.size()))).substr(2);
    const auto isLetterOrBlank = [](char c) { return c == ' ' || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    return line.find(':') != std::string_view::npos && TrimText(words) != "Refusals" &&
           std::ranges::all_of(words, isLetterOrBlank) && std::ranges::count(TrimText(words), ' ') <= 2;
}

[[noreturn]] void refuseLine(std::string_view line, std::string_view path) {
    throw std::logic_error(std::string(path) + ": this declares nothing that there is: " + std::string(line));
}

/// A run of comment lines of the header either declares something in every line, or is prose.
void readParagraph(SqlScript& script, std::span<const std::string_view> lines, std::string_view path) {
    std::vector<std::string_view> others;
    for (const std::string_view line : lines) {
        if (!takeDeclaration(script, line, path)) {
            others.push_back(line);
        }
    }
    if (!others.empty() && (others.size() < lines.size() || std::ranges::all_of(others, looksLikeDeclaration))) {
        refuseLine(others.front(), path);
    }
}

/// Takes the comments at the head of a text off it.
void readHeader(SqlScript& script, std::string_view& text, std::string_view path) {
    std::vector<std::string_view> paragraph;
    while (text.starts_with("--") && after(text.substr(0, text.find('\n')), "-- include:").empty()) {
        const std::string_view line = takeLine(text);
        if (TrimText(line) != "--") {
            paragraph.push_back(line);
            continue;
        }
        readParagraph(script, paragraph, path);
        paragraph.clear();
    }
    readParagraph(script, paragraph, path);
}

void readText(SqlScript& script, std::string_view text, std::string_view path, std::span<const SqlFile> files) {
    readHeader(script, text, path);
    while (!text.empty()) {
        const std::string_view line = takeLine(text);
        SqlScript misplaced;
        if (takeDeclaration(misplaced, line, path)) {
            refuseLine(line, path);
        }
        if (const auto part = after(line, "-- include:"); !part.empty()) {
            readText(script, partText(part, path, files), path, files);
        } else {
            script.Text.append(line).append("\n");
        }
    }
}

} // namespace

SqlScript readSqlScript(const SqlFile& file, std::span<const SqlFile> files) {
    SqlScript script;
    script.Name = sqlObjectName(file);
    readText(script, file.Text, file.Path, files);
    return script;
}

SqlScript builtInScript(std::string_view path, std::span<const SqlFile> files) {
    const auto file = std::ranges::find(files, path, &SqlFile::Path);
    if (file == files.end()) {
        throw std::logic_error("there is no built-in script " + std::string(path));
    }
    return readSqlScript(*file, files);
}

} // namespace refhost
