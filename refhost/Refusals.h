#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

class EDatabaseError;

namespace refhost {

class Languages;

/// A refusal's sentence without the things that it names: `Objednávka „OV7“ neexistuje.` is the pattern
/// `Objednávka „%1“ neexistuje.` and the thing `OV7`. Refusals name things between „ and “.
struct RefusalSentence {
    std::string pattern;
    std::vector<std::string> things;
};

RefusalSentence takeThingsOut(std::string_view sentence);

/// The refusal in the user's language with its things in the places of %1, %2 …; nothing when the catalogues have no
/// text for it or one that names a thing which this sentence lacks: then the database's own sentence is to be shown.
///
/// The key is "MELVARKHOST\REFUSAL\" + code and the built-in text the pattern, so that the forms of one code can be
/// translated apart.
std::optional<std::string> translateRefusal(const EDatabaseError& refusal, const Languages& languages);

} // namespace refhost
