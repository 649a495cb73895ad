#include "host/Exceptions.h"
#include "tests/database/Engines.h"
#include "tests/database/PrivateServer.h"

#include <gtest/gtest.h>

namespace refhost {
namespace {

TEST(PostgreSQLConnection, OpensANewDatabase) {
    const auto database = newDatabase(Engine::PostgreSQL);
    EXPECT_TRUE(database->hasSchema());
    EXPECT_EQ(database->user(), "novakova");
}

} // namespace
} // namespace refhost
