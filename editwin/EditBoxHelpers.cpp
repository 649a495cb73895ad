#include "editwin/EditBoxHelpers.h"

#include "editwin/AskingCheckBox.h"
#include "host/widgets/Buttons.h"

#include <functional>

using melvark::SettingsStore;

TEditBox::Helpers::Helpers(TEditBox& form, std::span<const RColumn> columns)
    : Editing(*form.StringGrid, columns),
      Writer(Editing),
      Keeper(Editing, Writer, form, [&form](const AnsiString& text) { form.ShowErrorBox(text); }),
      Presentation(Editing, Writer),
      ColumnMenu(Editing, Writer, Keeper,
                 {*form.ColumnsPopupMenu, *form.NadpisVlastnostiSloupce, *form.SkrytSloupec,
                  *form.EditovatelnySloupecAutomaticky, *form.EditovatelnySloupecVyberem, *form.NeeditovatelnySloupec,
                  *form.SkryteSloupce, [&form](TObject* sender) { form.ShowGridColumn(sender); }}),
      Settings(Editing, Keeper, SettingsStore(form.Kind().EditType + form.Kind().TypeOffset), form.LibraryManager(),
               {*form.MenuBtn, *form.SettingsPopupMenu, *form.PrejmenovatNastaveni, *form.UlozitNastaveni,
                *form.SmazatNastaveni, *form.TopPanel, *form.chbPrepocetCen,
                [&form](TObject* sender) { form.LoadColumnsSettings(sender); }}),
      Placement(form, form.Kind().EditType),
      Autosave(form, [&form] { form.AutoSave(&form); }),
      EditorEvents({.Enter = [&form](TControl* sender) { form.StringGridEnter(sender); },
                    .Exit = [&form](TControl* sender) { form.EditorExit(sender); },
                    .KeyDown = std::bind_front(&TEditBox::EditorKeyDown, &form),
                    .KeyPress = std::bind_front(&TEditBox::EditorKeyPress, &form),
                    .Wheel = [&form](QWheelEvent& event) { form.StringGrid->ScrollByWheel(event); }}),
      ButtonEvents({.Enter = [&form](TControl* sender) { form.StringGridExit(sender); },
                    .Exit = {},
                    .KeyDown = std::bind_front(&TEditBox::EditorKeyDown, &form),
                    .KeyPress = {},
                    .Wheel = {}}),
      FurtherButtonEvents({.Enter = [&form](TControl* sender) { form.StringGridExit(sender); },
                           .Exit = {},
                           .KeyDown = {},
                           .KeyPress = {},
                           .Wheel = {}}) {}
