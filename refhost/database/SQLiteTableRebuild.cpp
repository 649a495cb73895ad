#include "refhost/database/SQLiteTableRebuild.h"

#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteErrors.h"
#include "refhost/database/SQLiteFunctions.h"
#include "refhost/database/SQLiteSchema.h"
#include "refhost/database/SQLiteStatement.h"

#include <algorithm>
#include <vector>

namespace refhost {

namespace {

struct SchemaObject {
    std::string Type; ///< "table", "index", "trigger" or "view"
    std::string Name;
    std::string Sql;
};

using SchemaObjects = std::vector<SchemaObject>;

std::string textOf(const TDbValue& value) {
    return std::get<AnsiString>(value);
}

SchemaObjects objectsOf(SQLiteSession& session, const std::string& condition) {
    const std::string sql = "select type, name, sql from sqlite_schema "
                            "where sql is not null and name not like 'sqlite\\_%' escape '\\' and " +
                            condition + " order by rowid";
    std::string_view text = sql;
    SQLiteStatement statement(session, text);
    SchemaObjects objects;
    while (statement.step()) {
        objects.push_back({textOf(statement.value(0)), textOf(statement.value(1)), textOf(statement.value(2))});
    }
    return objects;
}

bool has(const SchemaObjects& objects, const SchemaObject& sought) {
    return std::ranges::any_of(objects, [&](const SchemaObject& object) {
        return object.Type == sought.Type && SameDbName(object.Name, sought.Name);
    });
}

std::vector<std::string> columnsOf(SQLiteSession& session, const std::string& table) {
    const std::string sql = "select name from pragma_table_info('" + table + "')";
    std::string_view text = sql;
    SQLiteStatement statement(session, text);
    std::vector<std::string> columns;
    while (statement.step()) {
        columns.push_back(textOf(statement.value(0)));
    }
    return columns;
}

bool hasRows(SQLiteSession& session, const std::string& sql) {
    std::string_view text = sql;
    SQLiteStatement statement(session, text);
    return statement.step();
}

/// What a file of this version holds.
SchemaObjects shippedObjects() {
    SQLiteSession empty(SQLiteSession::c_InMemory, {}, TFormatSettings{}, OpenMode::Create,
                        std::chrono::milliseconds(0));
    registerValueFunctions(empty);
    registerCzech(empty);
    createSQLiteTables(empty);
    createSQLiteViews(empty);
    return objectsOf(empty, "true");
}

std::string oldName(const std::string& table) {
    return "OLD_" + table;
}

/// Drops the file's objects of a type, those that are ours or all.
void drop(SQLiteSession& session, const SchemaObjects& objects) {
    for (const SchemaObject& object : objects) {
        session.execute("drop " + object.Type + " \"" + object.Name + "\"");
    }
}

void takeRowsOver(SQLiteSession& session, const std::string& table) {
    const std::string old = oldName(table);
    const std::vector<std::string> columns = columnsOf(session, table);
    std::string names;
    for (const std::string& column : columnsOf(session, old)) {
        if (std::ranges::none_of(columns, [&](const std::string& known) { return SameDbName(known, column); })) {
            throw refusal("ML926", {table, column});
        }
        names += (names.empty() ? "" : ", ") + column;
    }
    try {
        session.execute("insert into " + table + " (" + names + ") select " + names + " from " + old);
    } catch (const ESQLiteError& error) {
        if (error.isBrokenRule()) {
            throw refusal("ML927", {table}, error.Details());
        }
        throw;
    }
    // Identifiers that were given once are never given again, also when their rows have gone.
    session.execute("delete from sqlite_sequence where name = '" + table + "'");
    session.execute("update sqlite_sequence set name = '" + table + "' where name = '" + old + "'");
    session.execute("drop table " + old);
}

void checkReferences(SQLiteSession& session, const SchemaObjects& shipped) {
    for (const SchemaObject& object : shipped) {
        if (object.Type == "table" && hasRows(session, "pragma foreign_key_check(" + object.Name + ")")) {
            throw refusal("ML927/references", {object.Name});
        }
    }
}

} // namespace

void rebuildSQLiteTables(SQLiteSession& session, const std::string& steps) {
    const SchemaObjects shipped = shippedObjects();
    SchemaObjects views = objectsOf(session, "type = 'view'");
    std::erase_if(views, [&](const SchemaObject& view) { return !has(shipped, view); });
    drop(session, views);
    session.execute(steps);

    SchemaObjects tables = objectsOf(session, "type = 'table'");
    std::erase_if(tables, [&](const SchemaObject& table) { return !has(shipped, table); });
    SchemaObjects foreign;
    for (const SchemaObject& table : tables) {
        const SchemaObjects attached =
            objectsOf(session, "type in ('index', 'trigger') and tbl_name = '" + table.Name + "'");
        drop(session, attached);
        std::ranges::copy_if(attached, std::back_inserter(foreign),
                             [&](const SchemaObject& object) { return !has(shipped, object); });
        session.execute("alter table " + table.Name + " rename to " + oldName(table.Name));
    }

    createSQLiteTables(session);
    for (const SchemaObject& table : tables) {
        takeRowsOver(session, table.Name);
    }
    for (const SchemaObject& object : foreign) {
        session.execute(object.Sql);
    }
    createSQLiteViews(session);
    checkReferences(session, shipped);
}

} // namespace refhost
