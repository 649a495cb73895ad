#include "editwin/GridComboBox.h"

TGridComboBox::TGridComboBox(QWidget* owner) : QComboBox(owner) {
    setEditable(false);
    hide();
    connect(this, &QComboBox::currentIndexChanged, this, [this] { Changed(this); });
}

void TGridComboBox::SetItems(std::span<const AnsiString> texts) {
    clear();
    for (const AnsiString& text : texts) {
        addItem(QString::fromStdString(text));
    }
    FChanged = false;
}

void TGridComboBox::SelectText(std::string_view text) {
    // A flag without case sensitivity compares whole texts and ignores letter case.
    setCurrentIndex(findText(QString::fromUtf8(text.data(), qsizetype(text.size())), Qt::MatchFixedString));
    FChanged = false;
}

AnsiString TGridComboBox::SelectedText() const {
    return currentText().toStdString();
}

void TGridComboBox::Changed(QObject*) {
    FChanged = true;
}
