#include "editwin/model/TempFileName.h"

namespace melvark {

AnsiString TempFileName(std::string_view directory, std::string_view userName, std::string_view editor,
                        std::string_view source) {
    AnsiString name(directory);
    if (!directory.ends_with('/')) {
        name += '/';
    }
    name.append("melvarkeditor_").append(userName);
    name.append("_").append(editor);
    name.append("_").append(source);
    return name.append(".dat");
}

} // namespace melvark
