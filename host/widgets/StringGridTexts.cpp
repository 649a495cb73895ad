#include "host/widgets/StringGridTexts.h"

#include <utility>

namespace melvark {

const AnsiString& StringGridTexts::Text(int row) const {
    const auto written = FWritten.find(row);
    return written == FWritten.end() ? Underneath(row) : written->second;
}

void StringGridTexts::SetText(int row, AnsiString text) {
    if (text == Underneath(row)) {
        FWritten.erase(row);
    } else {
        FWritten.insert_or_assign(row, std::move(text));
    }
}

void StringGridTexts::SetUnderneath(TColumnTexts texts) {
    FUnderneath = std::move(texts);
    ForgetFrom(1);
}

void StringGridTexts::ForgetFrom(int row) {
    FWritten.erase(FWritten.lower_bound(row), FWritten.end());
}

const AnsiString& StringGridTexts::Underneath(int row) const {
    static const AnsiString empty;
    return row > 0 && FUnderneath ? FUnderneath(row) : empty;
}

} // namespace melvark
