#include "tests/database/CountedWrites.h"

#include "tests/database/OtherProcess.h"

#include <csignal>
#include <gtest/gtest.h>
#include <map>
#include <sqlite3.h>
#include <sys/mman.h>
#include <sys/wait.h>

namespace refhost {

namespace {

enum class AtPoint { Killed, DiskFull };

/// What the process leaves to its parent: shared memory.
struct Counter {
    int Point = 0;
    AtPoint What = AtPoint::Killed;
    int Passed = 0;
};

Counter* counter = nullptr;

void pass() {
    if (counter->Passed + 1 == counter->Point && counter->What == AtPoint::Killed) {
        raise(SIGKILL);
    }
    ++counter->Passed;
}

/// From its point on; c_NoPoint is never.
bool isDiskFull() {
    return counter->What == AtPoint::DiskFull && counter->Point != c_NoPoint && counter->Passed >= counter->Point;
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
    sqlite3_int64 size = 0;
    layer().SystemFile->xFileSize(file, &size);
    if (isDiskFull() && offset + count > size) { // what is there already can still be written anew
        return SQLITE_FULL;
    }
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

struct Watched {
    int Passed = 0;
    int Status = 0;
};

Watched watch(int point, AtPoint what, const std::function<int()>& work) {
    void* shared = mmap(nullptr, sizeof(Counter), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    counter = new (shared) Counter{point, what, 0};
    const int status = statusOf(startProcess([&] {
        countWrites();
        return work();
    }));
    const Watched result{counter->Passed, status};
    munmap(shared, sizeof(Counter));
    counter = nullptr;
    return result;
}

} // namespace

Interruption killedBeforeWrite(int point, const std::function<void()>& work) {
    const Watched watched = watch(point, AtPoint::Killed, [&] {
        work();
        return 0;
    });
    EXPECT_TRUE(WIFSIGNALED(watched.Status) || (WIFEXITED(watched.Status) && WEXITSTATUS(watched.Status) == 0));
    return {watched.Passed, WIFSIGNALED(watched.Status)};
}

int statusOnFullDisk(int point, const std::function<int()>& work) {
    const Watched watched = watch(point, AtPoint::DiskFull, work);
    EXPECT_TRUE(WIFEXITED(watched.Status));
    return WEXITSTATUS(watched.Status);
}

} // namespace refhost
