#include "editwin/model/ColumnSettingsDocument.h"
#include "tests/fuzzing/FuzzTarget.h"
#include "tests/model/ColumnsForTests.h"
#include "tests/model/SettingsJudge.h"

using namespace melvark;

std::string judgeColumnSettings(std::string_view input) {
    const std::vector<RColumn> defaults = columnsOfEveryKind();
    const std::vector<RColumn> previous = reboundColumns(defaults);
    const AppliedColumnSettings read = ReadColumnSettings(input, previous, defaults);
    if (std::string fault = faultOfLayout(read.Columns, previous, defaults); !fault.empty()) {
        return fault;
    }
    const AnsiString written = WriteColumnSettings(read.Columns, read.Recalculation);
    const AppliedColumnSettings again = ReadColumnSettings(written, previous, defaults);
    if (again.Recalculation != read.Recalculation) {
        return "the switch is not read back as it was written";
    }
    return shapesOf(again.Columns) == shapesOf(read.Columns) ? ""
                                                             : "the columns are not read back as they were written";
}
