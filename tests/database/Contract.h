#pragma once

#include "tests/database/Answers.h"
#include "tests/database/Engines.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// Only the code of the refusal, "accepted" when there was none.
std::string outcome(Database& database, const std::string& procedure, const Parameters& parameters = {});

/// An id as a parameter; the compiler would take a plain number for a flag.
TDbValue id(std::int64_t value);

/// Everything that the company's tables hold, to see that a call changed nothing. `except` are names of tables that it
/// may change.
std::string digest(Database& database, const std::vector<std::string>& except = {});

/// The names of all procedures, by name.
std::vector<std::string> procedureNames();

/// The company of ContractCompany.h that all tests of the program share: only for calls that change nothing.
Database& sharedCompanyOn(Engine engine);

/// A test of the contract, which runs on both engines on the company of ContractCompany.h.
class Contract : public testing::TestWithParam<Engine> {
protected:
    /// Only for calls that change nothing.
    static Database& sharedCompany();
    /// A company of the test's own.
    static std::unique_ptr<Database> ownCompany();
    /// The address of such a company, for tests that open it more than once.
    static std::string ownCompanyUrl();
};

inline constexpr Engine c_BothEngines[] = {Engine::SQLite, Engine::PostgreSQL};

std::string engineOf(const testing::TestParamInfo<Engine>& info);

} // namespace refhost
