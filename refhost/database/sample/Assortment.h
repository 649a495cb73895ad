#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace refhost::sample {

/// A unit in which goods are packed, and how many main units it holds, in thousandths. No name: no such unit.
struct PackedUnit {
    std::string_view Name;
    std::int64_t Factor = 0;
};

/// A size in which a kind of goods is sold: how it ends the item's name, its price in percent of the kind's price, its
/// main unit and the units in which it is delivered.
struct Packing {
    std::string_view Text;
    int PricePercent = 100;
    std::string_view MainUnit;
    std::array<PackedUnit, 2> Secondary{};
};

/// One kind of goods; every variety in every packing is a stock item ("Mouka" + "pšeničná hladká" + "1 kg").
struct GoodsKind {
    std::string_view Group1;
    std::string_view Group2;
    std::string_view Group3;
    std::string_view Name;
    std::string_view
        Varieties; ///< Divided by '|'; one may end with ':' and what it costs, in percent of the kind's price.
    std::span<const Packing> Packings;
    int Price = 0;            ///< In hundredths of the currency, without VAT.
    std::string_view VatRate; ///< The name of the rate.
    int ShelfLifeDays = 0;    ///< 0: does not perish.
};

std::span<const GoodsKind> foodKinds();
std::span<const GoodsKind> drinkKinds();
std::span<const GoodsKind> householdKinds();
std::span<const GoodsKind> officeKinds();
std::span<const GoodsKind> toolKinds();

} // namespace refhost::sample
