#pragma once

#include "refhost/database/Database.h"

#include <string>

namespace refhost {

/// A real database over a link that a test cuts at a call: before the database hears of it, or after it has done it.
/// The caller learns the same of either.
class UnansweredDatabase : public Database {
public:
    enum class Loss { None, OfRequest, OfAnswer };

    explicit UnansweredDatabase(Database& database) : database_(database) {}

    /// The next call of the procedure is lost so.
    void lose(Loss loss, std::string procedure) {
        loss_ = loss;
        procedure_ = std::move(procedure);
    }
    /// Whether the database knows a procedure of that name, from now on.
    void hide(std::string procedure) { hidden_ = std::move(procedure); }
    /// The names of the calls that it got, one after the other, without "MELVARKEDITOR".
    std::string takeCalls();

    TProcedureInfo Describe(const AnsiString& procedure) override;
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override { return database_.Query(sql); }

    bool hasSchema() override { return database_.hasSchema(); }
    void createSchema() override { database_.createSchema(); }
    void inOneTransaction(const std::function<void()>& work) override { database_.inOneTransaction(work); }
    void awaitAnswers() override { database_.awaitAnswers(); }
    std::shared_ptr<RowReader> openRows(const AnsiString& sql) override { return database_.openRows(sql); }
    void useProcedures(const std::string& folder) override { database_.useProcedures(folder); }
    void insertRows(std::string_view table, std::span<const std::string> columns,
                    std::span<const std::vector<TDbValue>> rows) override {
        database_.insertRows(table, columns, rows);
    }
    void runScript(std::string_view sql) override { database_.runScript(sql); }
    void runBuiltInScript(std::string_view path) override { database_.runBuiltInScript(path); }
    const std::string& user() const override { return database_.user(); }
    std::string address() const override { return database_.address(); }
    std::string engine() const override { return database_.engine(); }

private:
    Database& database_;
    Loss loss_ = Loss::None;
    std::string procedure_;
    std::string hidden_;
    std::string calls_;
};

} // namespace refhost
