#pragma once

#include "host/Types.h"

#include <initializer_list>
#include <string_view>

/// The sentences with which the contract itself refuses: a missing field, an unknown parameter, a damaged number. They
/// are told in the user's language like every other text, and in the built-in one while no host is installed.
namespace melvark {

/// A sentence: its language key and its built-in text, in which each "%s" is the place of a thing.
struct ContractText {
    std::string_view Key;
    std::string_view BuiltIn;
};

inline constexpr ContractText c_NoFieldInRecord{R"(KORDAN30\CONTRACT\NOFIELDINRECORD)", "Záznam nemá pole %s."};
inline constexpr ContractText c_NoFieldInResult{R"(KORDAN30\CONTRACT\NOFIELDINRESULT)", "Výsledek nemá pole %s."};
inline constexpr ContractText c_NoParameter{R"(KORDAN30\CONTRACT\NOPARAMETER)", "Procedura %s nemá parametr %s."};
inline constexpr ContractText c_NoClass{R"(KORDAN30\CONTRACT\NOCLASS)", "Třída %s není zaregistrována."};
inline constexpr ContractText c_NotAnInteger{R"(KORDAN30\CONTRACT\NOTANINTEGER)",
                                             "Hodnota „%s“ pole %s není celé číslo."};
inline constexpr ContractText c_NotANumber{R"(KORDAN30\CONTRACT\NOTANUMBER)",
                                           "Hodnota „%s“ pole %s není desetinné číslo."};
inline constexpr ContractText c_NotABoolean{R"(KORDAN30\CONTRACT\NOTABOOLEAN)",
                                            "Hodnota „%s“ pole %s není hodnota ano/ne."};
inline constexpr ContractText c_NotADate{R"(KORDAN30\CONTRACT\NOTADATE)", "Hodnota „%s“ pole %s není datum a čas."};
inline constexpr ContractText c_NotFinite{R"(KORDAN30\CONTRACT\NOTFINITE)", "Hodnota není konečné číslo."};
inline constexpr ContractText c_NoXMLName{R"(KORDAN30\CONTRACT\NOXMLNAME)", "„%s“ není jméno prvku XML."};
inline constexpr ContractText c_CutFormat{R"(KORDAN30\CONTRACT\CUTFORMAT)",
                                          "Text „%s“ nelze sestavit: značka na konci není úplná."};
inline constexpr ContractText c_WideFormat{R"(KORDAN30\CONTRACT\WIDEFORMAT)",
                                           "Text „%s“ nelze sestavit: šířka nebo přesnost je příliš velká."};
inline constexpr ContractText c_UnknownMark{R"(KORDAN30\CONTRACT\UNKNOWNMARK)",
                                            "Text „%s“ nelze sestavit: neznámá značka %s."};
inline constexpr ContractText c_NoArgument{R"(KORDAN30\CONTRACT\NOARGUMENT)",
                                           "Text „%s“ nelze sestavit: chybí %s. hodnota."};
inline constexpr ContractText c_ArgumentNoText{R"(KORDAN30\CONTRACT\ARGUMENTNOTEXT)",
                                               "Text „%s“ nelze sestavit: %s. hodnota není text."};
inline constexpr ContractText c_ArgumentNoInteger{R"(KORDAN30\CONTRACT\ARGUMENTNOINTEGER)",
                                                  "Text „%s“ nelze sestavit: %s. hodnota není celé číslo."};
inline constexpr ContractText c_ArgumentNoNumber{R"(KORDAN30\CONTRACT\ARGUMENTNONUMBER)",
                                                 "Text „%s“ nelze sestavit: %s. hodnota není číslo."};

/// The sentence in the user's language with the things in its places, in their order. It does not go through Format,
/// whose own refusals are among these sentences.
AnsiString Sentence(const ContractText& text, std::initializer_list<std::string_view> things);

} // namespace melvark
