#include "refhost/database/DecimalFunctions.h"

#include "host/Exceptions.h"
#include "host/FormatSettings.h"
#include "host/ValueText.h"
#include "refhost/database/Decimal.h"
#include "refhost/database/RefusalTable.h"

#include <memory>
#include <optional>
#include <span>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace refhost {

namespace {

using Arguments = std::span<sqlite3_value*>;

/// The decimal in an argument, nothing for null. Only a floating-point number needs a text of its own; the engine's
/// lives as long as the call.
class DecimalArgument {
public:
    explicit DecimalArgument(sqlite3_value* value) {
        switch (sqlite3_value_type(value)) {
        case SQLITE_NULL:
            return;
        case SQLITE_FLOAT:
            own_ = FloatToText(sqlite3_value_double(value), TFormatSettings{});
            text_ = own_;
            return;
        default: {
            const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
            if (text == nullptr) {
                throw std::bad_alloc();
            }
            text_ = std::string_view(text, static_cast<std::size_t>(sqlite3_value_bytes(value)));
        }
        }
    }
    DecimalArgument(const DecimalArgument&) = delete;
    DecimalArgument& operator=(const DecimalArgument&) = delete;

    explicit operator bool() const { return text_.has_value(); }
    std::string_view operator*() const { return *text_; }

private:
    std::string own_;
    std::optional<std::string_view> text_;
};

void giveText(sqlite3_context* context, const std::string& text) {
    sqlite3_result_text(context, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
}

/// Runs `body` for a call of the engine: no exception may travel through its C code.
template <typename Body>
void guarded(sqlite3_context* context, Body body) noexcept {
    try {
        body();
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    } catch (const std::exception& error) {
        sqlite3_result_error(context, error.what(), -1);
    }
}

template <std::string (*operation)(std::string_view)>
void unary(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        if (const DecimalArgument number(arguments[0]); number) {
            giveText(context, operation(*number));
        }
    });
}

template <std::string (*operation)(std::string_view, std::string_view)>
void binary(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        const DecimalArgument left(arguments[0]);
        const DecimalArgument right(arguments[1]);
        if (left && right) {
            giveText(context, operation(*left, *right));
        }
    });
}

/// An operation on one number and a number of decimals.
template <std::string (*operation)(std::string_view, int)>
void toDecimals(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        const DecimalArgument number(arguments[0]);
        if (number && sqlite3_value_type(arguments[1]) != SQLITE_NULL) {
            giveText(context, operation(*number, sqlite3_value_int(arguments[1])));
        }
    });
}

void divide(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        const DecimalArgument dividend(arguments[0]);
        const DecimalArgument divisor(arguments[1]);
        if (dividend && divisor && sqlite3_value_type(arguments[2]) != SQLITE_NULL) {
            giveText(context, decimalQuotient(*dividend, *divisor, sqlite3_value_int(arguments[2])));
        }
    });
}

void compare(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        const DecimalArgument left(arguments[0]);
        const DecimalArgument right(arguments[1]);
        if (left && right) {
            sqlite3_result_int(context, compareDecimals(*left, *right));
        }
    });
}

/// A quantity, a distance, and pairs of a unit price and a total: 1 when no total is further than the distance from
/// quantity times unit price. A pair that is not given whole does not count.
void productsAgree(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        const DecimalArgument quantity(arguments[0]);
        const DecimalArgument distance(arguments[1]);
        if (!quantity || !distance) {
            return;
        }
        bool agree = true;
        for (std::size_t i = 2; agree && i + 1 < arguments.size(); i += 2) {
            const DecimalArgument unit(arguments[i]);
            const DecimalArgument total(arguments[i + 1]);
            agree = !unit || !total || isProductWithin(*quantity, *unit, *total, *distance);
        }
        sqlite3_result_int(context, agree ? 1 : 0);
    });
}

/// What the engine keeps for one group of dec_sum: zeroed memory that holds a pointer once there is a value.
struct SumState {
    std::string* Total;
};

void addToSum(sqlite3_context* context, int count, sqlite3_value** values) {
    guarded(context, [&] {
        const Arguments arguments(values, static_cast<std::size_t>(count));
        auto* state = static_cast<SumState*>(sqlite3_aggregate_context(context, sizeof(SumState)));
        if (state == nullptr) {
            throw std::bad_alloc();
        }
        const DecimalArgument number(arguments[0]);
        if (!number) {
            return;
        }
        if (state->Total == nullptr) {
            state->Total = std::make_unique<std::string>("0").release();
        }
        *state->Total = decimalSum(*state->Total, *number);
    });
}

/// The engine calls this for every group that it began, also when the statement fails half-way.
void finishSum(sqlite3_context* context) {
    auto* state = static_cast<SumState*>(sqlite3_aggregate_context(context, 0));
    if (state == nullptr) {
        return;
    }
    const std::unique_ptr<std::string> total(state->Total);
    if (total) {
        giveText(context, *total);
    }
}

using Function = void (*)(sqlite3_context*, int, sqlite3_value**);

struct Entry {
    const char* Name;
    int Arguments;
    Function Call;
};

constexpr Entry c_Functions[] = {
    {"dec_add", 2, binary<decimalSum>},
    {"dec_sub", 2, binary<decimalDifference>},
    {"dec_mul", 2, binary<decimalProduct>},
    {"dec_div", 3, divide},
    {"dec_round", 2, toDecimals<roundedDecimal>},
    {"dec_fixed", 2, toDecimals<fixedDecimal>},
    {"dec_abs", 1, unary<absoluteDecimal>},
    {"dec_neg", 1, unary<negatedDecimal>},
    {"dec_cmp", 2, compare},
    {"dec_products_agree", -1, productsAgree},
};

constexpr int c_Flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;

void checkRegistered(sqlite3* database, int status) {
    if (status != SQLITE_OK) {
        throw refusal("ML930/decimals", {}, sqlite3_errmsg(database));
    }
}

} // namespace

void registerDecimalFunctions(sqlite3* database) {
    for (const Entry& entry : c_Functions) {
        checkRegistered(database, sqlite3_create_function_v2(database, entry.Name, entry.Arguments, c_Flags, nullptr,
                                                             entry.Call, nullptr, nullptr, nullptr));
    }
    checkRegistered(database, sqlite3_create_function_v2(database, "dec_sum", 1, c_Flags, nullptr, nullptr, addToSum,
                                                         finishSum, nullptr));
}

} // namespace refhost
