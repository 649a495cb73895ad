#pragma once

#include "editwin/Autosave.h"
#include "editwin/CellWriter.h"
#include "editwin/ColumnMenu.h"
#include "editwin/EditorEvents.h"
#include "editwin/GridEditing.h"
#include "editwin/GridPresentation.h"
#include "editwin/InPlaceEditing.h"
#include "editwin/MelvarkEditorEditWin.h"
#include "editwin/SettingsMenu.h"
#include "editwin/WindowPlacement.h"
#include "editwin/model/KeptFile.h"

#include <memory>
#include <span>

/// The helpers of the base editor form, each with the form's controls that it works on, in the order in which they need
/// one another. Who includes the form's header need not know them.
struct TEditBox::Helpers {
    /// The form has its controls already.
    Helpers(TEditBox& form, std::span<const RColumn> columns);

    melvark::GridEditing Editing;
    melvark::CellWriter Writer;
    melvark::InPlaceEditing Keeper;
    melvark::GridPresentation Presentation;
    melvark::ColumnMenu ColumnMenu;
    melvark::SettingsMenu Settings;
    melvark::WindowPlacementKeeper Placement;
    melvark::Autosave Autosave;
    std::unique_ptr<melvark::KeptFile> TempFile; ///< Named by the form.
    melvark::EditorEvents EditorEvents;
    melvark::EditorEvents ButtonEvents;
    melvark::EditorEvents FurtherButtonEvents;
};
