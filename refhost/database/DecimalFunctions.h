#pragma once

struct sqlite3;

namespace refhost {

/// Gives the connection exact decimal arithmetic (Decimal.h) as SQL functions, callable from the statements of
/// procedures, views and triggers:
///
///     dec_add(a, b)  dec_sub(a, b)  dec_mul(a, b)     exact
///     dec_div(a, b, decimals)                         the exact quotient rounded once
///     dec_round(x, decimals)  dec_abs(x)  dec_neg(x)
///     dec_cmp(a, b)                                   -1, 0 or 1
///     dec_fixed(x, decimals)                          a text with just so many decimals
///     dec_sum(x)                                      aggregate; null when there is no value
///
/// An argument is a decimal text, an integer, or a floating-point number, which is taken as its shortest decimal. A
/// null argument gives null. Results are canonical texts. A malformed argument or a division by zero fails the
/// statement. Throws EDatabaseError when the engine refuses to register a function.
void registerDecimalFunctions(sqlite3* database);

} // namespace refhost
