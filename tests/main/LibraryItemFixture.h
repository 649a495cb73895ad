#pragma once

#include "editors/MelvarkEditorDodObjEditWin.h"
#include "editors/MelvarkEditorDodakEditWin.h"
#include "host/DataSet.h"
#include "main/MelvarkEditorMain.h"
#include "tests/support/DodObjScripts.h"
#include "tests/support/DodakScripts.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QApplication>
#include <QTest>

#include <gmock/gmock.h>
#include <map>
#include <vector>

/// A screen's dataset with one document, or none.
class FakeDataSet : public TDataSet {
public:
    std::map<AnsiString, TDbValue, std::less<>> fields{{"_ID", std::int64_t{7}}, {"_DODVID", std::int64_t{40}}};
    bool isEmpty = false;
    /// The fields that were asked for, in order.
    mutable std::vector<AnsiString> askedFor;

    bool IsEmpty() const override { return isEmpty; }
    std::optional<TField> FindField(std::string_view name) const override {
        askedFor.emplace_back(name);
        const auto found = fields.find(name);
        if (found == fields.end()) {
            return std::nullopt;
        }
        return TField(found->first, found->second, settings_);
    }

private:
    TFormatSettings settings_ = TFormatSettings::Czech();
};

/// The library item on a recording host whose delivery note 7 of supplier 40, or order 7, can be edited.
class LibraryItemFixture : public testing::Test {
protected:
    LibraryItemFixture() {
        scriptDodakEditor(host_.connection);
        scriptDodObjEditor(host_.connection);
    }

    /// Gives the dataset what an order's screen has.
    void showOrder() {
        dataSet_.fields.emplace("_SKLDID", std::int64_t{3});
        dataSet_.fields.emplace("SKLAD", AnsiString("Praha"));
        dataSet_.fields.emplace("DODAVATEL", AnsiString("Vrba"));
        dataSet_.fields.emplace("OBJEDNANIDC", AnsiString("5.3.2026 14:30"));
    }
    void TearDown() override { EXPECT_THAT(host_.errors(), testing::IsEmpty()); }

    static std::size_t editorsAlive() {
        std::size_t count = 0;
        for (const QWidget* window : QApplication::topLevelWidgets()) {
            count += qobject_cast<const TDocumentEditBox*>(window) ? 1 : 0;
        }
        return count;
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
    RecordingLibraryManager manager_;
    FakeDataSet dataSet_;
    TMelvarkEditor item_{&manager_};
};
