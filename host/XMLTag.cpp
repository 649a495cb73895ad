#include "host/XMLTag.h"

#include "host/ContractTexts.h"
#include "host/Exceptions.h"
#include "host/Utf8.h"

#include <algorithm>
#include <exception>
#include <expat.h>
#include <iterator>
#include <new>
#include <type_traits>
#include <utility>

namespace {

constexpr std::size_t c_MaxDepth = 256;
constexpr std::size_t c_MaxSize = std::size_t{16} * 1024 * 1024;
constexpr std::string_view c_Declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

struct ParserDeleter {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
};
using ParserHandle = std::unique_ptr<std::remove_pointer_t<XML_Parser>, ParserDeleter>;

bool IsBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Builds a tree from the events of one parser. A document that breaks a limit or declares something of its own stops
/// the parser; an exception inside an event waits until the parser, which is plain C, has returned.
class TreeBuilder {
public:
    explicit TreeBuilder(TXMLBlanks blanks) : FBlanks(blanks), FParser(XML_ParserCreate("UTF-8")) {
        if (!FParser) {
            throw std::bad_alloc();
        }
        XML_SetUserData(FParser.get(), this);
        XML_SetElementHandler(
            FParser.get(),
            [](void* self, const XML_Char* name, const XML_Char**) { Guarded(self, &TreeBuilder::StartElement, name); },
            [](void* self, const XML_Char*) { Guarded(self, &TreeBuilder::EndElement); });
        XML_SetCharacterDataHandler(FParser.get(), [](void* self, const XML_Char* text, int length) {
            Guarded(self, &TreeBuilder::CharacterData, std::string_view(text, static_cast<std::size_t>(length)));
        });
        XML_SetEntityDeclHandler(FParser.get(), [](void* self, const XML_Char*, int, const XML_Char*, int,
                                                   const XML_Char*, const XML_Char*, const XML_Char*,
                                                   const XML_Char*) { Guarded(self, &TreeBuilder::Stop); });
        // A reference to an entity of a description that is not read: its text would be missing from the tree.
        XML_SetSkippedEntityHandler(FParser.get(),
                                    [](void* self, const XML_Char*, int) { Guarded(self, &TreeBuilder::Stop); });
    }

    std::unique_ptr<TXMLTag> Run(std::string_view text) {
        const XML_Status status = XML_Parse(FParser.get(), text.data(), static_cast<int>(text.size()), XML_TRUE);
        if (FError) {
            std::rethrow_exception(FError);
        }
        return status == XML_STATUS_OK ? std::move(FRoot) : nullptr;
    }

private:
    /// Runs the handler of one event unless the parser was stopped: it may still deliver an event or two.
    template <class... Parameters>
    static void Guarded(void* self, void (TreeBuilder::*handler)(Parameters...),
                        std::type_identity_t<Parameters>... arguments) {
        auto* builder = static_cast<TreeBuilder*>(self);
        if (builder->FStopped) {
            return;
        }
        try {
            (builder->*handler)(arguments...);
        } catch (...) {
            builder->FError = std::current_exception();
            builder->Stop();
        }
    }

    void StartElement(const XML_Char* name) {
        if (FOpen.size() == c_MaxDepth) {
            Stop();
        } else if (FOpen.empty()) {
            FRoot = std::make_unique<TXMLTag>(name);
            FOpen.push_back({FRoot.get(), {}});
        } else {
            FOpen.push_back({&FOpen.back().Tag->CreateTag(name), {}});
        }
    }

    void CharacterData(std::string_view text) { FOpen.back().Text += text; }

    void EndElement() {
        auto& [tag, text] = FOpen.back();
        if (FBlanks == TXMLBlanks::Keep || tag->GetTagsCount() == 0 || !IsBlank(text)) {
            tag->SetValue(std::move(text));
        }
        FOpen.pop_back();
    }

    void Stop() {
        FStopped = true;
        XML_StopParser(FParser.get(), XML_FALSE);
    }

    struct OpenElement {
        TXMLTag* Tag;
        AnsiString Text;
    };

    TXMLBlanks FBlanks;
    ParserHandle FParser;
    std::unique_ptr<TXMLTag> FRoot;
    std::vector<OpenElement> FOpen;
    bool FStopped = false;
    std::exception_ptr FError;
};

/// Whether the name can stand in a tag. Plain names are seen at once; for the others the parser itself is asked.
bool IsXMLName(const AnsiString& name) {
    const auto isNameStart = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; };
    const auto isNameChar = [&](char c) { return isNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.'; };
    if (name.empty()) {
        return false;
    }
    if (isNameStart(name.front()) && std::all_of(name.begin(), name.end(), isNameChar)) {
        return true;
    }
    const std::unique_ptr<TXMLTag> tag = ParseXML("<" + name + "/>");
    return tag != nullptr && tag->GetName() == name;
}

/// Whether the character can stand in a text as it is; the three that become references have been taken out before.
bool IsXMLCharacter(char32_t code) {
    return code >= 0x20 && code != 0xFFFE && code != 0xFFFF;
}

/// Line breaks and tabs become references: a reader would turn a bare CR into LF, and editors change the others.
void AppendEscaped(AnsiString& output, std::string_view text) {
    while (!text.empty()) {
        const auto [code, length, isValid] = melvark::FirstStep(text);
        switch (code) {
        case '&':
            output += "&amp;";
            break;
        case '<':
            output += "&lt;";
            break;
        case '>':
            output += "&gt;";
            break;
        case '\t':
            output += "&#9;";
            break;
        case '\n':
            output += "&#10;";
            break;
        case '\r':
            output += "&#13;";
            break;
        default:
            if (isValid && IsXMLCharacter(code)) {
                output += text.substr(0, length);
            }
        }
        text.remove_prefix(length);
    }
}

/// Writes the start tag and the text; an element with nothing in it is written whole. True when its end is still to
/// come.
bool OpenTag(AnsiString& output, const TXMLTag& tag) {
    if (!IsXMLName(tag.GetName())) {
        throw EConvertError(melvark::Sentence(melvark::c_NoXMLName, {tag.GetName()}));
    }
    output += "<" + tag.GetName();
    if (tag.GetTagsCount() == 0 && tag.GetValue().empty()) {
        output += "/>";
        return false;
    }
    output += ">";
    AppendEscaped(output, tag.GetValue());
    return true;
}

} // namespace

TXMLTag::TXMLTag(AnsiString name) : FName(std::move(name)) {}

// Takes the tree apart level by level: the children's own destructors would recurse as deep as the tree is.
TXMLTag::~TXMLTag() {
    std::vector<std::unique_ptr<TXMLTag>> pending = std::move(FTags);
    while (!pending.empty()) {
        const std::unique_ptr<TXMLTag> tag = std::move(pending.back());
        pending.pop_back();
        std::move(tag->FTags.begin(), tag->FTags.end(), std::back_inserter(pending));
        tag->FTags.clear();
    }
}

TXMLTag& TXMLTag::CreateTag(AnsiString name) {
    return *FTags.emplace_back(std::make_unique<TXMLTag>(std::move(name)));
}

const TXMLTag* TXMLTag::GetTagByName(std::string_view name) const {
    const auto found = std::find_if(FTags.begin(), FTags.end(), [&](const auto& tag) { return tag->FName == name; });
    return found == FTags.end() ? nullptr : found->get();
}

const TXMLTag& TXMLTag::GetTag(std::size_t index) const {
    return *FTags.at(index);
}

std::unique_ptr<TXMLTag> ParseXML(std::string_view text, TXMLBlanks blanks) {
    // A null character is no part of a document. Wide encodings cannot do without one: the parser would recognise them
    // by their first bytes, although the text is UTF-8.
    if (text.size() > c_MaxSize || text.find('\0') != std::string_view::npos) {
        return nullptr;
    }
    return TreeBuilder(blanks).Run(text);
}

AnsiString OutputXMLStr(const TXMLTag& root) {
    struct OpenElement {
        const TXMLTag* Tag;
        std::size_t NextChild;
    };
    AnsiString output(c_Declaration);
    std::vector<OpenElement> open;
    if (OpenTag(output, root)) {
        open.push_back({&root, 0});
    }
    while (!open.empty()) {
        auto& [tag, nextChild] = open.back();
        if (nextChild == tag->GetTagsCount()) {
            output += "</" + tag->GetName() + ">";
            open.pop_back();
        } else if (const TXMLTag& child = tag->GetTag(nextChild++); OpenTag(output, child)) {
            open.push_back({&child, 0});
        }
    }
    return output;
}
