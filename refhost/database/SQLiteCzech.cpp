#include "refhost/database/RefusalTable.h"
#include "refhost/database/SQLiteCall.h"
#include "refhost/database/SQLiteFunctions.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <unicode/coll.h>
#include <unicode/locid.h>
#include <unicode/unistr.h>
#include <unicode/uversion.h>

namespace refhost {

namespace {

const icu::Locale& czech() {
    static const icu::Locale locale("cs");
    return locale;
}

/// Called by the engine, which expects no failure: texts that the rules cannot tell apart are told apart by their
/// bytes.
int compareCzech(void* collator, int leftSize, const void* left, int rightSize, const void* right) {
    const icu::StringPiece leftText(static_cast<const char*>(left), leftSize);
    const icu::StringPiece rightText(static_cast<const char*>(right), rightSize);
    UErrorCode error = U_ZERO_ERROR;
    const UCollationResult order = static_cast<const icu::Collator*>(collator)->compareUTF8(leftText, rightText, error);
    if (U_SUCCESS(error) && order != UCOL_EQUAL) {
        return order == UCOL_LESS ? -1 : 1;
    }
    const int bytes = std::memcmp(left, right, static_cast<std::size_t>(std::min(leftSize, rightSize)));
    return bytes != 0 ? bytes : leftSize - rightSize;
}

void deleteCollator(void* collator) {
    const std::unique_ptr<icu::Collator> owner(static_cast<icu::Collator*>(collator));
}

std::string utf8(const icu::UnicodeString& text) {
    std::string bytes;
    text.toUTF8String(bytes);
    return bytes;
}

void lower(const SQLiteCall& call) {
    if (const auto text = call.text(0)) {
        call.give(utf8(icu::UnicodeString::fromUTF8(*text).toLower(czech())));
    }
}

void upper(const SQLiteCall& call) {
    if (const auto text = call.text(0)) {
        call.give(utf8(icu::UnicodeString::fromUTF8(*text).toUpper(czech())));
    }
}

std::unique_ptr<icu::Collator> makeCollator() {
    UErrorCode error = U_ZERO_ERROR;
    std::unique_ptr<icu::Collator> collator(icu::Collator::createInstance(czech(), error));
    if (U_FAILURE(error)) {
        throw refusal("ML930/collation", {}, u_errorName(error));
    }
    return collator;
}

} // namespace

void registerCzech(SQLiteSession& session) {
    std::unique_ptr<icu::Collator> collator = makeCollator();
    int status = sqlite3_create_collation_v2(session.handle(), "CZECH", SQLITE_UTF8, collator.get(), compareCzech,
                                             deleteCollator);
    if (status == SQLITE_OK) {
        static_cast<void>(collator.release()); // deleteCollator owns it now.
        status = sqlite3_create_function_v2(session.handle(), "lower", 1,
                                            SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, &session,
                                            sqliteFunction<lower>, nullptr, nullptr, nullptr);
    }
    if (status == SQLITE_OK) {
        status = sqlite3_create_function_v2(session.handle(), "upper", 1,
                                            SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS, &session,
                                            sqliteFunction<upper>, nullptr, nullptr, nullptr);
    }
    if (status != SQLITE_OK) {
        session.fail(status, "collation CZECH");
    }
}

std::string czechVersion() {
    UVersionInfo version;
    makeCollator()->getVersion(version);
    char text[U_MAX_VERSION_STRING_LENGTH];
    u_versionToString(version, text);
    return text;
}

} // namespace refhost
