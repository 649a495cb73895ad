#include "tests/database/KilledBeforeWrite.h"

#include "tests/database/OtherProcess.h"

#include <csignal>
#include <gtest/gtest.h>
#include <map>
#include <sqlite3.h>
#include <sys/mman.h>
#include <sys/wait.h>

namespace refhost {

namespace {

/// What the killed process leaves to its parent: shared memory.
struct Counter {
    int Point = 0;
    int Passed = 0;
};

Counter* counter = nullptr;

void pass() {
    if (counter->Passed + 1 == counter->Point) {
        raise(SIGKILL);
    }
    ++counter->Passed;
}

/// The engine's own layer over the system, whose writing functions are called behind the count.
struct Layer {
    sqlite3_vfs* System = nullptr;
    sqlite3_vfs Counting{};
    const sqlite3_io_methods* SystemFile = nullptr;
    std::map<const sqlite3_io_methods*, sqlite3_io_methods> Files;
};

Layer& layer() {
    static Layer only;
    return only;
}

int countedWrite(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
    pass();
    return layer().SystemFile->xWrite(file, bytes, count, offset);
}

int countedTruncate(sqlite3_file* file, sqlite3_int64 size) {
    pass();
    return layer().SystemFile->xTruncate(file, size);
}

int countedDelete(sqlite3_vfs* /*self*/, const char* name, int sync) {
    pass();
    return layer().System->xDelete(layer().System, name, sync);
}

int countedOpen(sqlite3_vfs* /*self*/, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    const int status = layer().System->xOpen(layer().System, name, file, flags, outFlags);
    if (status == SQLITE_OK && file->pMethods != nullptr) {
        // The sets of functions differ in the way of locking only.
        layer().SystemFile = file->pMethods;
        sqlite3_io_methods& counting = layer().Files.try_emplace(file->pMethods, *file->pMethods).first->second;
        counting.xWrite = countedWrite;
        counting.xTruncate = countedTruncate;
        file->pMethods = &counting;
    }
    return status;
}

void countWrites() {
    layer().System = sqlite3_vfs_find(nullptr);
    layer().Counting = *layer().System;
    layer().Counting.zName = "counting";
    layer().Counting.xOpen = countedOpen;
    layer().Counting.xDelete = countedDelete;
    sqlite3_vfs_register(&layer().Counting, 1);
}

} // namespace

Interruption killedBeforeWrite(int point, const std::function<void()>& work) {
    void* shared = mmap(nullptr, sizeof(Counter), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    counter = new (shared) Counter{point, 0};
    const int status = statusOf(startProcess([&] {
        countWrites();
        work();
        return 0;
    }));
    const Interruption result{counter->Passed, WIFSIGNALED(status)};
    EXPECT_TRUE(result.IsKilled || (WIFEXITED(status) && WEXITSTATUS(status) == 0)) << status;
    munmap(shared, sizeof(Counter));
    counter = nullptr;
    return result;
}

} // namespace refhost
