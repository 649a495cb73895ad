#include "tests/database/CompanyPicture.h"

#include "tests/database/VersionOne.h"

namespace refhost {

namespace {

bool isFile(const std::string& url) {
    return url.starts_with("sqlite:");
}

/// The columns that the first version's tables had, by which their rows are compared.
const std::map<std::string, std::string> c_Tables{
    {"UZIVATEL", "ID, JMENO"},
    {"SKLAD", "ID, NAZEV"},
    {"DODAVATEL", "ID, JMENO, MESTO"},
    {"DPH", "ID, NAZEV, SAZBA, PLATIOD, PLATIDO"},
    {"SKUPSPOL1", "ID, NAZEV"},
    {"SKUPSPOL2", "ID, SSP1ID, NAZEV"},
    {"SKUPSPOL3", "ID, SSP2ID, NAZEV"},
    {"SKLADPOL", "ID, NAZEV, SSP3ID, DPHID, TRVANLIVOSTDNU, AKTIVNI"},
    {"SKPL", "ID, SKLPID, PORADI, NAZEV, FAKTOR"},
    {"DODCENIK", "ID, DODVID, SKLPID, PLATIOD, PLATIDO, CENA, SLEVA"},
    {"DODOBJEDNAVKA", "ID, VZOR, CISLO, NAZEV, OBJEDNANIDC, DODVID, SKLDID, OTEVRENO"},
    {"DODOBJPOL", "ID, DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI, DODANO, KOMPLETNI, POPIS, KOMENTAR"},
    {"DODAK", "ID, CISLO, DATUM, DODVID, SKLDID, OTEVRENO"},
    {"DODAKPOL", "ID, DODKID, PORADI, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA, JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, "
                 "JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY, JEDNCENABSESLEVOU, CENASSESLEVOU, TRVANLIVOST, DOBSID"},
    {"DODAKZDROJ", "ID, DODKID, DODKIDZDROJ, DDOBIDZDROJ"},
    {"EDITORNASTAVENI", "ID, UZIVID, TYPEDITACE, NAZEV, KOMENTAR, SDILENE, DATA"},
    {"EDITORNASTAVENIDEF", "UZIVID, TYPEDITACE, NASTAVENIID"},
    {"EDITOROKNO", "UZIVID, TYPEDITACE, DATA"},
};

constexpr const char* c_ServerSchema = R"(
    select 'column ' || c.relname || '.' || a.attname || ' ' || format_type(a.atttypid, a.atttypmod)
           || ' ' || a.attnotnull || ' ' || a.attidentity::text || ' ' || a.attcollation::regcollation
           || ' ' || coalesce(pg_get_expr(d.adbin, d.adrelid), '-')
    from pg_class c
    join pg_attribute a on a.attrelid = c.oid and a.attnum > 0 and not a.attisdropped
    left join pg_attrdef d on d.adrelid = c.oid and d.adnum = a.attnum
    where c.relnamespace = 'melvark'::regnamespace and c.relkind in ('r', 'v', 'c')
    union all
    select 'relation ' || c.relname || ' ' || c.relkind::text || ' ' || c.relowner::regrole
           || ' ' || coalesce(c.relacl::text, '-') || ' ' || coalesce(obj_description(c.oid, 'pg_class'), '-')
           || ' ' || coalesce(obj_description(c.reltype, 'pg_type'), '-')
           || case c.relkind when 'v' then pg_get_viewdef(c.oid) else '' end
    from pg_class c where c.relnamespace = 'melvark'::regnamespace
    union all
    select 'constraint ' || conrelid::regclass || ' ' || conname || ' ' || pg_get_constraintdef(oid)
    from pg_constraint where connamespace = 'melvark'::regnamespace
    union all
    select 'index ' || pg_get_indexdef(indexrelid)
    from pg_index where indrelid in (select oid from pg_class where relnamespace = 'melvark'::regnamespace)
    union all
    select 'trigger ' || pg_get_triggerdef(oid)
    from pg_trigger where not tgisinternal
                          and tgrelid in (select oid from pg_class where relnamespace = 'melvark'::regnamespace)
    union all
    select 'function ' || proowner::regrole || ' ' || coalesce(proacl::text, '-')
           || ' ' || coalesce(obj_description(oid, 'pg_proc'), '-') || pg_get_functiondef(oid)
    from pg_proc where pronamespace = 'melvark'::regnamespace
    union all
    select 'schema ' || obj_description(oid, 'pg_namespace') || nspacl::text
    from pg_namespace where nspname = 'melvark'
    order by 1)";

constexpr const char* c_FileSchema = "select type, name, tbl_name, sql from sqlite_schema order by type, name";

} // namespace

std::map<std::string, std::vector<std::string>> contentsOf(const std::string& url) {
    BareConnection database(url);
    std::map<std::string, std::vector<std::string>> all;
    for (const auto& [table, columns] : c_Tables) {
        const std::string schema = isFile(url) ? "" : "melvark.";
        all[table] = database.rows("select " + columns + " from " + schema + table + " order by 1, 2");
    }
    return all;
}

std::vector<std::string> schemaOf(const std::string& url) {
    BareConnection database(url);
    if (isFile(url)) {
        return database.rows(c_FileSchema);
    }
    database.run("set search_path = pg_catalog"); // so that every name is told with its schema
    return database.rows(c_ServerSchema);
}

} // namespace refhost
