#include "editwin/model/EditExceptions.h"

// The destructors stand here so that each class has its type information in one place.
EBadValue::~EBadValue() = default;

EEditBox::~EEditBox() = default;

EEditBoxCanceled::~EEditBoxCanceled() = default;
