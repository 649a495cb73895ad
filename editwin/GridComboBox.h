#pragma once

#include "host/Types.h"

#include <QComboBox>

#include <span>
#include <string_view>

/// The in-place editor of a column with a value list: a drop-down list in which the user chooses and cannot type. It
/// knows whether the user has chosen since it was opened on a cell; committing the choice is InPlaceEditing's.
class TGridComboBox : public QComboBox {
    Q_OBJECT

public:
    /// Hidden and without items.
    explicit TGridComboBox(QWidget* owner);

    /// Replaces the items by the texts, in their order.
    void SetItems(std::span<const AnsiString> texts);

    /// Selects the first item whose whole text equals `text`, letter case ignored, none when there is no such item. It
    /// does not count as a change.
    void SelectText(std::string_view text);
    /// The text of the selected item; empty without one.
    AnsiString SelectedText() const;

    /// The combo box's own change notification.
    void Changed(QObject* sender);
    bool HasChanged() const { return FChanged; }

private:
    bool FChanged = false;
};
