#pragma once

#include <functional>
#include <host/Connection.h>
#include <host/FormatSettings.h>
#include <map>
#include <vector>

/// A database that lives in memory and has just the procedures that filling a delivery note from the template needs.
/// It keeps no column layouts and no window places.
class MemoryDatabase final : public TConnection {
public:
    struct Line {
        AnsiString Item;
        double Quantity = 0;
        double UnitPrice = 0;
    };

    MemoryDatabase();

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override;

    const std::vector<Line>& StoredLines() const { return FStored; }

private:
    using Values = std::map<AnsiString, TDbValue>; ///< The parameters of a call by their names.

    struct Procedure {
        std::vector<AnsiString> Inputs;
        std::function<TCallResult(const Values&)> Run;
    };

    const Procedure& Find(const AnsiString& name) const;
    double Number(const Values& values, const AnsiString& name) const;
    TCallResult Template() const;
    TCallResult Recalculate(const Values& values) const;
    TCallResult Stage(const Values& values);
    TCallResult TakeOver();
    TFormatSettings FSettings = TFormatSettings::English();
    std::map<AnsiString, Procedure> FProcedures;
    std::vector<Line> FStaged;
    std::vector<Line> FStored;
};
