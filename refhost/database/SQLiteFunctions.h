#pragma once

#include <string>

namespace refhost {

class SQLiteSession;

/// Gives the session the SQL functions on which its procedures stand; `session` has to outlive its handle's use.
///
///     refuse(key, thing, …)                  ends the call with a refusal of the table, which names the things
///     refuse_line(place, key, thing, …)      likewise about a row of the save, counted from 0 as the rows were sent
///     parse_number(text[, label[, decimals]])  canonical decimal text; refuses, naming the label, what is no number
///     parse_date(text[, label])              ISO date
///     parse_moment(text)                     ISO date and time
///     as_integer(text)                       an integer of 32 bits, null for what is none
///     typed(text)                            without blanks around it; null when nothing is left
///     are_decimals(n, text, …)               whether the texts are canonical decimals of at most n decimals, or null
///     typed_id(text)                         likewise; an identifier that is 0 or negative is none
///     shown(text)                            cut to the length at which sentences show it
///     number_text(decimal)                   as the user reads numbers; likewise
///     total_text(decimal)                    with two decimals,
///     date_text(date), moment_text(moment)   in the locale's order
///     months_before(date, months)            the same day so many months ago, at most the month's last one
///     moment_in(zone)                        the moment of now in a time zone; refuses an unknown one
///     current_user_name()
///
/// Null arguments give null. Throws EDatabaseError when the engine refuses to register one.
void registerValueFunctions(SQLiteSession& session);

/// Gives the session the Czech language: the collation CZECH, with bytes deciding between texts that compare equal, so
/// that only equal texts are equal; and lower(text) and upper(text) for every script.
void registerCzech(SQLiteSession& session);

/// The version of the rules by which CZECH sorts; an index written by another one may be in another order.
std::string czechVersion();

} // namespace refhost
