#pragma once

/// \file
/// A row of a screen or of a result, and the readings of its values.

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "host/Types.h"

#include <cstdint>
#include <optional>
#include <string_view>

/// One field of a row: its name, its value and readings of the value. A null reads as the empty text, 0 or false; a
/// null moment as the first one of 1.1.1970. Made by datasets and results; copies are cheap enough to hand on.
class TField {
public:
    /// Refers to the settings, which must outlive it.
    TField(AnsiString name, TDbValue value, const TFormatSettings& settings);
    TField(AnsiString name, TDbValue value, TFormatSettings&& settings) = delete;

    /// The column's name, as the errors tell it.
    const AnsiString& Name() const { return FName; }
    /// Whether the database has no value here; the empty text is one.
    bool IsNull() const;
    /// Numbers with the locale's separator; a text as it is; booleans "1" and "0".
    AnsiString AsString() const;
    /// Throws EConvertError, naming the field, for a text that is no integer (likewise the readings below).
    std::int32_t AsInteger() const;
    /// A finite number, from a text with the locale's separator.
    double AsFloat() const;
    /// A boolean, a number other than 0, or the texts "1", "0", "true", "false".
    bool AsBoolean() const;
    /// A text "date" or "date hours:minutes[:seconds]" in the locale's order, or in ISO order (2027-02-01 13:45:00).
    TDateTime AsDateTime() const;

private:
    AnsiString FName;
    TDbValue FValue;
    const TFormatSettings* FSettings;
};

/// The rows of a host screen, positioned on the current document. Implemented by the host, which hands it to
/// TLibraryItem::Execute and keeps it in its place until that returns.
class TDataSet {
public:
    TDataSet() = default;
    TDataSet(const TDataSet&) = delete;
    TDataSet& operator=(const TDataSet&) = delete;
    virtual ~TDataSet();

    /// Whether there is no current row.
    virtual bool IsEmpty() const = 0;
    /// The field of the current row, or nothing when the dataset has no such column. Names are matched without regard
    /// to case.
    virtual std::optional<TField> FindField(std::string_view name) const = 0;

    /// As FindField, but an absent column throws EDatabaseError naming it: the dataset's own missing-field error.
    TField FieldByName(std::string_view name) const;
};

/// The rows selected in a screen's grid, as the host hands them to a library item. The contract says nothing of what is
/// in it: a host that has none hands null.
class TXBookmarkList;
