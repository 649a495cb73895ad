#pragma once

#include <QStringList>

/// What windows are called and how a number is typed in a language of the host.
struct SessionWords {
    const char* Language;
    const char* Locale;
    const char* Main;
    const char* OrderEditor;
    const char* TemplateEditor;
    const char* Order; ///< This one and the next four are the dialogs in which a source is chosen.
    const char* Template;
    const char* DeliveryNote;
    const char* Groups;
    const char* Supplier;
    const char* Error;
    const char* TwoAndAHalf;

    /// What the host's command line needs for it.
    QStringList arguments() const {
        return {QStringLiteral("--language"), QString::fromLatin1(Language), QStringLiteral("--locale"),
                QString::fromLatin1(Locale)};
    }
};

inline constexpr SessionWords c_Czech{"cs",
                                      "cs_CZ",
                                      "Melvark – nákup a sklad",
                                      "Vložení položek do objednávky zboží",
                                      "Vložení položek do vzorové objednávky zboží",
                                      "Výběr objednávky",
                                      "Výběr vzoru objednávky",
                                      "Výběr dodacího listu",
                                      "Výběr skupin skladových položek",
                                      "Výběr dodavatele",
                                      "Chyba",
                                      "2,5"};

inline constexpr SessionWords c_English{"en",
                                        "en_GB",
                                        "Melvark – purchasing and stock",
                                        "Insert order lines",
                                        "Insert order template lines",
                                        "Select an order",
                                        "Select an order template",
                                        "Select a delivery note",
                                        "Select stock groups",
                                        "Select a supplier",
                                        "Error",
                                        "2.5"};
