#pragma once

#include "refhost/database/Database.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace crowd {

/// A document that one clerk fills from a source, through the dialog in which it is named.
struct ClerkTask {
    std::string Params; ///< What the screen's menu passes to the module: "DODAK,DODOBJ".
    std::int32_t Document = 0;
    std::string Source;    ///< The number that is typed into the dialog.
    int Lines = 0;         ///< The source has so many.
    bool IsShared = false; ///< A colleague has the same source, and there may be less left of it.
};

/// The quantity that this clerk types into the first line of each document, and nobody else anywhere.
int quantityOf(int clerk);

/// Makes the tasks' documents in a company that has a sample: open ones without lines, each filled from a source of 5
/// to 40 lines; delivery notes from delivery notes and from orders, orders from orders. Each task is another document,
/// and the first three of a clerk are of all three ways. Later one source order in eight is that of a colleague too, so
/// that the later of the two is refused.
std::vector<std::vector<ClerkTask>> makeTasks(refhost::Database& company, int clerks, int tasksOfEach, unsigned seed);

/// What is wrong with the saved documents of a clerk, for people: lines that are missing, doubled or a colleague's.
std::vector<std::string> wrongDocuments(refhost::Database& company, int clerk, const std::vector<ClerkTask>& saved);

/// How the tasks get to the clerk's own process.
void writeTasks(const std::filesystem::path& file, const std::vector<ClerkTask>& tasks);
std::vector<ClerkTask> readTasks(const std::filesystem::path& file);

} // namespace crowd
