#pragma once

/// \file
/// A small XML tree, and reading and writing it.

#include "host/Types.h"

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

/// A node of an XML tree: a name, a text value and an ordered list of children that it owns. Attributes are not part of
/// the contract; reading skips them.
class TXMLTag {
public:
    /// A node without a value and children. The name is looked at when the tree is written.
    explicit TXMLTag(AnsiString name);
    TXMLTag(const TXMLTag&) = delete;
    TXMLTag& operator=(const TXMLTag&) = delete;
    ~TXMLTag();

    /// The element's name.
    const AnsiString& GetName() const { return FName; }
    /// The character data directly inside the element, all pieces joined, unchanged.
    const AnsiString& GetValue() const { return FValue; }
    /// Replaces the character data; any UTF-8.
    void SetValue(AnsiString value) { FValue = std::move(value); }

    /// Appends a child and returns it; it lives as long as this node.
    TXMLTag& CreateTag(AnsiString name);
    /// The first child of that name (case-sensitive), or null.
    const TXMLTag* GetTagByName(std::string_view name) const;
    /// How many children there are.
    std::size_t GetTagsCount() const { return FTags.size(); }
    /// The child at `index`, 0 to GetTagsCount() - 1, in their order; std::out_of_range for another.
    const TXMLTag& GetTag(std::size_t index) const;

private:
    AnsiString FName;
    AnsiString FValue;
    std::vector<std::unique_ptr<TXMLTag>> FTags;
};

/// What ParseXML does with character data that is blank throughout and stands beside child elements.
enum class TXMLBlanks { Drop, Keep };

/// Parses a document into a tree. Null when it is empty, not well-formed, deeper than 256 levels, larger than 16 MiB,
/// or declares entities of its own: a document from outside is never half-read. The flag says what becomes of layout
/// blanks.
std::unique_ptr<TXMLTag> ParseXML(std::string_view text, TXMLBlanks blanks = TXMLBlanks::Drop);

/// The tree as one document: UTF-8 declaration, no indentation, line breaks and tabs in texts as character references,
/// bytes that are no UTF-8 and characters that XML cannot hold dropped. A node's own text comes before its children.
/// What it writes, ParseXML reads back unchanged, up to 256 levels; a blank text beside children only with
/// TXMLBlanks::Keep. Throws EConvertError for a node whose name is no XML name.
AnsiString OutputXMLStr(const TXMLTag& root);
