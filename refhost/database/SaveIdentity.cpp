#include "refhost/database/SaveIdentity.h"

#include <algorithm>
#include <random>
#include <string_view>

namespace refhost {

std::string newSaveIdentity() {
    constexpr std::string_view c_Digits = "0123456789abcdef";
    std::random_device device;
    std::uniform_int_distribution<std::size_t> digit(0, c_Digits.size() - 1);
    std::string identity(32, '0');
    std::ranges::generate(identity, [&] { return c_Digits[digit(device)]; });
    return identity;
}

TProcedureCall callAboutSave(const char* procedure, TDbValue identity) {
    return {.Name = procedure, .Params = {{"a_ULOZENI", std::move(identity)}}, .Open = false};
}

} // namespace refhost
