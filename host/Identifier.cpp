#include "host/Identifier.h"

#include "host/LiveData.h"

namespace melvark {

void SetIdentifier(TLiveParam& param, int id) {
    if (id == c_NullValue) {
        param.Clear();
    } else {
        param.SetAsInteger(id);
    }
}

} // namespace melvark
