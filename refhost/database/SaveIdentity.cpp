#include "refhost/database/SaveIdentity.h"

#include <algorithm>
#include <random>

namespace refhost {

namespace {

constexpr std::string_view c_Digits = "0123456789abcdef";
constexpr std::size_t c_Length = 32;

} // namespace

std::string newSaveIdentity() {
    std::random_device device;
    std::uniform_int_distribution<std::size_t> digit(0, c_Digits.size() - 1);
    std::string identity(c_Length, '0');
    std::ranges::generate(identity, [&] { return c_Digits[digit(device)]; });
    return identity;
}

bool isSaveIdentity(std::string_view text) {
    return text.size() == c_Length && text.find_first_not_of(c_Digits) == std::string_view::npos;
}

TProcedureCall callAboutSave(const char* procedure, TDbValue identity) {
    return {.Name = procedure, .Params = {{"a_ULOZENI", std::move(identity)}}, .Open = false};
}

} // namespace refhost
