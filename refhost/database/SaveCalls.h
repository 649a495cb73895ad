#pragma once

#include <string_view>

namespace refhost {

/// What a module's call is in the life of a save. Each kind of document has procedures of its own.
enum class SaveStep { Other, Opening, Begin, Row, Closing, AboutWork };

struct SaveCall {
    std::string_view Procedure;
    SaveStep Is;
    std::string_view Closing; ///< The closing call of this kind of document; empty when the call belongs to none.
};

/// What the call of this procedure is, however its name is written.
SaveCall saveCallOf(std::string_view procedure);

} // namespace refhost
