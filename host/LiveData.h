#pragma once

/// \file
/// How a plug-in reaches the database: one object for each call.

#include "host/Connection.h"
#include "host/DataSet.h"
#include "host/Types.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <variant>
#include <vector>

/// A value whose type the caller does not fix: an integer or a text.
using TVariant = std::variant<std::int32_t, AnsiString>;

/// A parameter of a stored procedure. Input parameters are set before the call, output parameters read after it.
class TLiveParam {
public:
    /// Null at first. Made by TLiveStoredProc::ParamByName.
    explicit TLiveParam(AnsiString name);

    /// In the spelling of the first who named it.
    const AnsiString& Name() const { return FName; }
    /// Sets an identifier or a count. The last value set counts, here and below.
    void SetAsInteger(std::int32_t value);
    /// Sets a number that is no cell's text.
    void SetAsFloat(double value);
    /// Sets a yes or no.
    void SetAsBoolean(bool value);
    /// Sets a text: of a cell as it was typed, for the database reads it.
    void SetAsString(AnsiString value);
    /// Sets whichever the variant holds.
    void SetAsVariant(TVariant value);
    /// Makes the parameter null.
    void Clear();

    /// Whether it was cleared, or never set.
    bool IsNull() const;
    /// False for null; see TField::AsBoolean.
    bool AsBoolean() const;
    /// What goes to the connection.
    const TDbValue& Value() const { return FValue; }

private:
    friend class TLiveStoredProc;
    AnsiString FName;
    TDbValue FValue;
};

/// The rows that a procedure or query brought, read one after the other. Fields of an empty result are null.
class TLiveResult {
public:
    /// Whether the reading position is behind the last row.
    bool Eof() const;
    /// To the next row, or behind the last one.
    void Next();
    /// The value in the current row; null when there is no row. Throws EDatabaseError naming the column when the result
    /// has none of that name.
    TField FieldByName(std::string_view column) const;
    /// The number under which Fields gives that column in every row of this result set: found once, read often. Throws
    /// EDatabaseError naming the column when the result has none of that name.
    std::size_t FieldNumber(std::string_view column) const;
    /// As FieldNumber; nothing when the result has no such column.
    std::optional<std::size_t> FindField(std::string_view column) const;
    /// As FieldByName, by a number that FieldNumber gave for this result set.
    TField Fields(std::size_t number) const;
    /// As Fields(number).AsString(), moved out of the result where it holds a text: each field is taken once.
    AnsiString TakeString(std::size_t number);
    /// The rows of this result set from the current one on.
    std::size_t RowsLeft() const;
    /// Whether the result set has such a column.
    bool HasField(std::string_view column) const;

protected:
    TLiveResult() = default;
    ~TLiveResult() = default;
    /// The result sets of a call, the first one current.
    void SetTables(std::vector<TResultTable> tables);
    /// To the first row of the next set; false when there is none.
    bool NextTable();

private:
    const TResultTable* Table() const;

    std::vector<TResultTable> FTables;
    std::size_t FTable = 0;
    std::size_t FRow = 0;
};

/// A stored procedure on the current host's connection, for one call:
///
///     TLiveStoredProc proc("NAME");
///     proc.ParamByName("a_ID").SetAsInteger(id);
///     proc.Exec(true);
///     for (; !proc.Eof(); proc.Next()) use(proc.FieldByName("NAZEV").AsString());
///
/// Parameters travel in the order in which ParamByName first named them. Everything that the call brings is fetched by
/// Exec; errors travel up as they are, and the object's end is all that is needed then.
class TLiveStoredProc : public TLiveResult {
public:
    /// Needs a current host; the database is not asked yet.
    explicit TLiveStoredProc(AnsiString name);
    TLiveStoredProc(const TLiveStoredProc&) = delete;
    TLiveStoredProc& operator=(const TLiveStoredProc&) = delete;
    ~TLiveStoredProc();

    /// Throws EDatabaseError when there is no such procedure or it does not declare the name. The reference stays valid
    /// for the life of the object.
    TLiveParam& ParamByName(std::string_view name);
    /// Whether the procedure declares the name. Throws EDatabaseError when there is no such procedure.
    bool HasParam(std::string_view name);

    /// Runs the procedure; with `open` its first result set is positioned on its first row. False for a failure that
    /// the host chose not to raise; otherwise a failure throws EDatabaseError.
    bool Exec(bool open);
    /// Moves to the next result set; false when there is none.
    bool Resume();

private:
    /// A parameter that was named, and its place among the declared ones: inputs first, then outputs.
    struct TNamedParam {
        std::unique_ptr<TLiveParam> Param;
        std::size_t Place;
    };

    const TProcedureInfo& Info();
    std::optional<std::size_t> FindDeclared(std::string_view name);
    TLiveParam& ParamAt(std::size_t place, std::string_view name);

    AnsiString FName;
    std::unique_ptr<TProcedureInfo> FInfo;
    std::vector<TNamedParam> FParams; ///< In the order in which they were named first.
    /// Behind the place that was found last: callers mostly name parameters in the order in which they are declared.
    std::size_t FExpectedInput = 0;
};

/// A query of a fixed text on the current host's connection.
class TLiveQuery : public TLiveResult {
public:
    /// Needs a current host; the database is not asked yet.
    explicit TLiveQuery(AnsiString sql);
    TLiveQuery(const TLiveQuery&) = delete;
    TLiveQuery& operator=(const TLiveQuery&) = delete;
    ~TLiveQuery();

    /// Runs it and stands on the first row. Throws EDatabaseError.
    void LiveOpen();

private:
    AnsiString FSql;
};
