#pragma once

/// \file
/// Identifiers of documents and how one travels to a procedure.

class TLiveParam;

/// Identifiers are 32-bit integers of the database. This one means "none".
inline constexpr int c_NullValue = -1;

namespace melvark {

/// Sets an identifier, or null for none: procedures never get c_NullValue.
void SetIdentifier(TLiveParam& param, int id);

} // namespace melvark
