#pragma once

#include <QString>

/// The titles of the windows that sessions wait for, in Czech.
inline const QString c_MainTitle = QStringLiteral("Melvark – nákup a sklad");
inline const QString c_NoteTitle = QStringLiteral("Vložení položek dodacího listu");
inline const QString c_ErrorTitle = QStringLiteral("Chyba");
inline const QString c_QuestionTitle = QStringLiteral("Potvrzení");
