#include "host/LibraryItem.h"

void TPersistent::AssignTo(TPersistent&) {}

void TPersistent::DefineProperties(TFiler&) {}

void TPersistent::Assign(const TPersistent&) {}

TLibraryItem::TLibraryItem(TLibraryManager* libraryManager) : FLibraryManager(libraryManager) {}

TLibraryItem::~TLibraryItem() = default;
