#include "refhost/database/Database.h"

#include "refhost/database/ParameterValues.h"
#include "refhost/database/RefusalTable.h"

namespace refhost {

Database::~Database() = default;

void refuseQuery(std::string_view sql) {
    throw refusal("ML920", {shownText(sql)});
}

} // namespace refhost
