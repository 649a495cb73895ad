#pragma once

/// \file
/// The desktop framework's names where Qt's own class does the job.
///
/// Forms, the string grid and the buttons have thin classes of their own (TForm, TStringGrid, TQelPngBitBtn). Whoever
/// uses a member of one of these includes the Qt header of the class.

#include <functional>

class QAction;
class QCheckBox;
class QComboBox;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QObject;
class QPixmap;
class QPlainTextEdit;
class QRadioButton;
class QTimer;
class QWidget;

/// \name Qt's own classes
/// \{
using TObject = QObject;           ///< Whatever sends an event.
using TComponent = QObject;        ///< What owns other things and frees them.
using TControl = QWidget;          ///< Anything that stands in a window.
using TWinControl = QWidget;       ///< A control that can have the focus.
using TPanel = QFrame;             ///< A framed part of a window.
using TLabel = QLabel;             ///< A text beside a control.
using TEdit = QLineEdit;           ///< One line to type in.
using TMemo = QPlainTextEdit;      ///< Several lines to type in, without markup.
using TCheckBox = QCheckBox;       ///< Yes or no.
using TRadioButton = QRadioButton; ///< One of several.
using TGroupBox = QGroupBox;       ///< A frame with a heading.
using TComboBox = QComboBox;       ///< One line with a list to choose from.
using TMenuItem = QAction;         ///< A line of a menu.
using TPopupMenu = QMenu;          ///< A menu that opens where it is asked for.
using TTimer = QTimer;             ///< Something that happens later or again.
using TPngObject = QPixmap;        ///< An image of a button, null when there is none.
/// \}

/// The handler of an event that says only whom it comes from.
using TNotifyEvent = std::function<void(TObject* Sender)>;
