#pragma once

#include "host/LibraryManager.h"

#include <functional>

class QWidget;

namespace melvark {

/// Visits the texts of a form that a user's language may replace: the window title (control "Form") and, for every
/// named control and menu item in the order of creation, its caption and hint. Left out are empty texts, controls
/// without a name, parts that Qt made inside a control, and other windows.
void VisitFormTexts(QWidget& form, const std::function<void(const TLocalizableForm::TText&)>& visit);

} // namespace melvark
