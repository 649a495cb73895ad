#pragma once

#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace refhost {

/// The images of the resource module: drawn from vectors when they are first asked for and kept as PNG, large enough to
/// stay crisp on a display with doubled scale. Colours stand out on light and dark windows alike.
class Images {
public:
    /// The PNG bytes of the image of a group ("OK" of "ENGINE"); empty when there is none of that name. They stay valid
    /// for the life of the object.
    std::string_view data(std::string_view image, std::string_view group) const;

private:
    mutable std::map<std::pair<std::string, std::string>, std::string> drawn_;
};

} // namespace refhost
