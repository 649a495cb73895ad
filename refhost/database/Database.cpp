#include "refhost/database/Database.h"

namespace refhost {

Database::~Database() = default;

} // namespace refhost
