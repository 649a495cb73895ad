#pragma once

#include "editors/DocumentRows.h"
#include "editors/DodakTables.h"
#include "editwin/model/DataGrid.h"
#include "tests/support/DodakScripts.h"
#include "tests/support/RecordingHost.h"

#include <gmock/gmock.h>
#include <vector>

/// The rules of a delivery note's lines without a form: a recording host, the default columns and a store.
class EditorRules : public testing::Test {
protected:
    EditorRules() {
        scriptDodakEditor(host_.connection);
        store_.SetColCount(static_cast<int>(defaults_.size()));
    }

    melvark::DocumentColumns columns() const { return {active_, defaults_}; }

    /// Puts the line into the store row, unmarked.
    void putLine(int row, const LineCells& line) {
        needRow(row);
        for (const auto& [key, text] : line) {
            store_.SetCellWithNoChange(columns().ByKey(key).DataColumn, row, text);
        }
    }

    /// The user's change of a cell: written and marked.
    void type(int row, const AnsiString& key, const AnsiString& text) {
        needRow(row);
        store_.SetCells(columns().ByKey(key).DataColumn, row, text);
    }

    AnsiString cell(int row, const AnsiString& key) const { return columns().Cell(store_, key, row); }

    void needRow(int row) {
        if (store_.GetRowCount() <= row) {
            store_.SetRowCount(row + 1);
        }
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    melvark::DodakBindings bindings_;
    std::vector<RColumn> defaults_ = melvark::LoadDefaultColumnsSettings(melvark::c_DodakOpening.Columns, bindings_);
    std::vector<RColumn> active_ = defaults_;
    TDataGrid store_;
};
