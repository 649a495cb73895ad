#pragma once

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

/// The desktop framework's names where Qt's own class does the job. Forms, the string grid and the buttons
/// have thin classes of their own (Form.h, StringGrid.h, Buttons.h). Whoever uses a member of one of these includes the
/// Qt header of the class.
using TObject = QObject;
using TComponent = QObject;
using TControl = QWidget;
using TWinControl = QWidget;
using TPanel = QFrame;
using TLabel = QLabel;
using TEdit = QLineEdit;
using TMemo = QPlainTextEdit;
using TCheckBox = QCheckBox;
using TRadioButton = QRadioButton;
using TGroupBox = QGroupBox;
using TComboBox = QComboBox;
using TMenuItem = QAction;
using TPopupMenu = QMenu;
using TTimer = QTimer;
using TPngObject = QPixmap;

/// The handler of an event that says only whom it comes from.
using TNotifyEvent = std::function<void(TObject* Sender)>;
