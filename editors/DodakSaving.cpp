#include "editors/DodakSaving.h"

#include "editwin/model/DataGrid.h"

#include <array>

namespace melvark {

namespace {

constexpr std::array c_RowParams{
    RowParam{"a_DOBSID", "DOBSID", ParamForm::Text},
    RowParam{"a_SKLADPOL", "SKLADPOL", ParamForm::Text},
    RowParam{"a_SKLAD", "SKLAD", ParamForm::Text},
    RowParam{"a_MNOZSTVI", "MNOZSTVI", ParamForm::NumberText},
    RowParam{"a_DPH", "DPH", ParamForm::Text},
    RowParam{"a_SLEVA", "SLEVA", ParamForm::NumberText},
    RowParam{"a_JEDNCENABSL", "JEDNCENABSESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNDPHASL", "JEDNDPHASESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNDPHBSL", "JEDNDPHBSESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNCENASSL", "JEDNCENASSESLEVOU", ParamForm::NumberText},
    RowParam{"a_JEDNCENAB", "JEDNCENABBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_JEDNDPHA", "JEDNDPHABEZSLEVY", ParamForm::NumberText},
    RowParam{"a_JEDNDPHB", "JEDNDPHBBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_JEDNCENAS", "JEDNCENASBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_CENABSL", "CENABSESLEVOU", ParamForm::NumberText},
    RowParam{"a_DPHASL", "DPHASESLEVOU", ParamForm::NumberText},
    RowParam{"a_DPHBSL", "DPHBSESLEVOU", ParamForm::NumberText},
    RowParam{"a_CENASSL", "CENASSESLEVOU", ParamForm::NumberText},
    RowParam{"a_CENAB", "CENABBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_DPHA", "DPHABEZSLEVY", ParamForm::NumberText},
    RowParam{"a_DPHB", "DPHBBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_CENAS", "CENASBEZSLEVY", ParamForm::NumberText},
    RowParam{"a_TRVANLIVOST", "TRVANLIVOST", ParamForm::Text},
};

} // namespace

std::span<const RowParam> DodakRowParams() {
    return c_RowParams;
}

bool InsertDodakRows(const DocumentColumns& columns, const TDataGrid& store) {
    return InsertRows("MELVARKEDITORDodakInsertToTemp", c_RowParams, columns, store);
}

bool TakeOverDodakRows(const DodakSaveTarget& target) {
    return TakeOverRows("MELVARKEDITORDodakTempUloz", {"a_DODKID", target.DodkID},
                        {{"a_DODKID_ZDROJ", target.SourceDodkID}, {"a_DDOBID_ZDROJ", target.SourceOrderID}});
}

} // namespace melvark
