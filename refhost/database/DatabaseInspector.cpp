#include "refhost/database/DatabaseInspector.h"

namespace refhost {

DatabaseInspector::~DatabaseInspector() = default;

} // namespace refhost
