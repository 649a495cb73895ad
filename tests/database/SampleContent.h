#pragma once

#include "refhost/database/Database.h"

#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace refhost {

/// The day on which the tests' sample companies are made: a Wednesday after a working day, so that the newest documents
/// are of yesterday and today.
inline constexpr std::chrono::sys_days c_SampleToday = std::chrono::year(2026) / 11 / 18;
inline constexpr const char* c_SampleTodayText = "2026-11-18";

/// The sample company of that day on the embedded engine, made once for the test program.
Database& sampleCompany();

/// The rows that a query brings, each as one text: "1 | Hlavní sklad | -". A null is "-".
std::vector<std::string> queryRows(Database& database, const std::string& sql);

/// The only number that a query brings.
std::int64_t queryNumber(Database& database, const std::string& sql);

/// Rows of the sample company that contradict a fact; none are expected.
std::vector<std::string> contradicting(const std::string& sql);

/// How many rows of the sample company: "SKLADPOL where AKTIVNI = 1".
std::int64_t count(const std::string& what);

/// All rows of the sample's tables by table, in the order of their keys, with numbers in their canonical form.
std::map<std::string, std::vector<std::string>> sampleContent(Database& database);

} // namespace refhost
