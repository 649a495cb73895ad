#pragma once

#include "tests/database/Engines.h"

#include <gtest/gtest.h>
#include <string>

/// Sessions that are the same on both engines:
/// INSTANTIATE_TEST_SUITE_P(Engines, SUITE, c_BothEngines, engineOf).
using OnBothEngines = testing::TestWithParam<refhost::Engine>;

inline const auto c_BothEngines = testing::Values(refhost::Engine::SQLite, refhost::Engine::PostgreSQL);

inline std::string engineOf(const testing::TestParamInfo<refhost::Engine>& row) {
    return refhost::engineName(row.param);
}
