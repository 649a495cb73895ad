#include "editors/DodObjSaving.h"

#include "editwin/model/DataGrid.h"

#include <array>

namespace melvark {

namespace {

// The columns of the main unit end in HL, its parameters in nothing.
constexpr std::array c_RowParams{
    RowParam{"a_SKLADPOL", "SKLADPOL", ParamForm::Text},
    RowParam{"a_SKLAD", "SKLAD", ParamForm::Text},
    RowParam{"a_DODAVATEL", "DODAVATEL", ParamForm::Text},
    RowParam{"a_SKPLID", "SKPLIDHL", ParamForm::Text},
    RowParam{"a_MNOZSTVI", "MNOZSTVIHL", ParamForm::NumberText},
    RowParam{"a_JEDNOTKY", "JEDNOTKYHL", ParamForm::Text},
    RowParam{"a_SKPLIDV1", "SKPLIDV1", ParamForm::Text},
    RowParam{"a_MNOZSTVIV1", "MNOZSTVIV1", ParamForm::NumberText},
    RowParam{"a_JEDNOTKYV1", "JEDNOTKYV1", ParamForm::Text},
    RowParam{"a_SKPLIDV2", "SKPLIDV2", ParamForm::Text},
    RowParam{"a_MNOZSTVIV2", "MNOZSTVIV2", ParamForm::NumberText},
    RowParam{"a_JEDNOTKYV2", "JEDNOTKYV2", ParamForm::Text},
    RowParam{"a_POPIS", "POPIS", ParamForm::Text},
    RowParam{"a_KOMENTAR", "KOMENTAR", ParamForm::Text},
};

} // namespace

bool InsertDodObjRows(const DocumentColumns& columns, const TDataGrid& store) {
    return InsertRows("MELVARKEDITORDodObjInsertToTemp", c_RowParams, columns, store);
}

bool TakeOverDodObjRows(const DodObjSaveTarget& target) {
    return TakeOverRows("MELVARKEDITORDodObjTempUloz", {"a_DDOBID", target.DdobID},
                        {{"a_DDOBID_ZDROJ", target.SourceOrderID},
                         {"a_DDOBIDVZOR_ZDROJ", target.SourceTemplateID},
                         {"a_DODKID_ZDROJ", target.SourceDodkID}});
}

} // namespace melvark
