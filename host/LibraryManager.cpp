#include "host/LibraryManager.h"

TLocalizableForm::~TLocalizableForm() = default;

TLibraryManager::~TLibraryManager() = default;
