<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="cs">
<context>
    <name></name>
    <!-- The framework's message box -->
    <message id="KORDAN30\MESSAGEBOX\OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="KORDAN30\MESSAGEBOX\YES">
        <source>&amp;Ano</source>
        <translation>&amp;Yes</translation>
    </message>
    <message id="KORDAN30\MESSAGEBOX\NO">
        <source>&amp;Ne</source>
        <translation>&amp;No</translation>
    </message>
    <!-- What the contract itself refuses -->
    <message id="KORDAN30\CONTRACT\NOFIELDINRECORD">
        <source>Záznam nemá pole %s.</source>
        <translation>The record has no field %s.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOFIELDINRESULT">
        <source>Výsledek nemá pole %s.</source>
        <translation>The result has no field %s.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOPARAMETER">
        <source>Procedura %s nemá parametr %s.</source>
        <translation>The procedure %s has no parameter %s.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOCLASS">
        <source>Třída %s není zaregistrována.</source>
        <translation>The class %s is not registered.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOTANINTEGER">
        <source>Hodnota „%s“ pole %s není celé číslo.</source>
        <translation>The value “%s” of the field %s is not a whole number.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOTANUMBER">
        <source>Hodnota „%s“ pole %s není desetinné číslo.</source>
        <translation>The value “%s” of the field %s is not a number.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOTABOOLEAN">
        <source>Hodnota „%s“ pole %s není hodnota ano/ne.</source>
        <translation>The value “%s” of the field %s is neither yes nor no.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOTADATE">
        <source>Hodnota „%s“ pole %s není datum a čas.</source>
        <translation>The value “%s” of the field %s is not a date and time.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOTFINITE">
        <source>Hodnota není konečné číslo.</source>
        <translation>The value is not a finite number.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOXMLNAME">
        <source>„%s“ není jméno prvku XML.</source>
        <translation>“%s” is not the name of an XML element.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\CUTFORMAT">
        <source>Text „%s“ nelze sestavit: značka na konci není úplná.</source>
        <translation>The text “%s” cannot be put together: the mark at its end is not complete.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\WIDEFORMAT">
        <source>Text „%s“ nelze sestavit: šířka nebo přesnost je příliš velká.</source>
        <translation>The text “%s” cannot be put together: a width or precision is too large.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\UNKNOWNMARK">
        <source>Text „%s“ nelze sestavit: neznámá značka %s.</source>
        <translation>The text “%s” cannot be put together: unknown mark %s.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\NOARGUMENT">
        <source>Text „%s“ nelze sestavit: chybí %s. hodnota.</source>
        <translation>The text “%s” cannot be put together: value %s is missing.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\ARGUMENTNOTEXT">
        <source>Text „%s“ nelze sestavit: %s. hodnota není text.</source>
        <translation>The text “%s” cannot be put together: value %s is not a text.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\ARGUMENTNOINTEGER">
        <source>Text „%s“ nelze sestavit: %s. hodnota není celé číslo.</source>
        <translation>The text “%s” cannot be put together: value %s is not a whole number.</translation>
    </message>
    <message id="KORDAN30\CONTRACT\ARGUMENTNONUMBER">
        <source>Text „%s“ nelze sestavit: %s. hodnota není číslo.</source>
        <translation>The text “%s” cannot be put together: value %s is not a number.</translation>
    </message>
    <!-- Messages -->
    <message id="KORDAN30\MELVARKEDITOR\ERROR">
        <source>Chyba</source>
        <translation>Error</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\CONFIRMATION">
        <source>Potvrzení</source>
        <translation>Confirmation</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\NOTINTEGERVALUE">
        <source>Hodnota %s není celé číslo</source>
        <translation>The value %s is not a whole number</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\NOTFLOATVALUE">
        <source>Hodnota %s není desetinné číslo</source>
        <translation>The value %s is not a decimal number</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\NOTDATEVALUE">
        <source>Hodnota %s není datum</source>
        <translation>The value %s is not a date</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\INVALIDDISCOUNTVALUE">
        <source>Neplatná hodnota slevy</source>
        <translation>The discount is not valid</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\INVALIDEDITTYPE">
        <source>Neplatný typ editace (%s)</source>
        <translation>Unknown kind of editing (%s)</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\NEPLATNYTYPEDITACEDOKLADU">
        <source>Nepodporovaný typ editace dokladu</source>
        <translation>This kind of document cannot be edited here</translation>
    </message>
    <!-- The file of unsaved work -->
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVEFAILED">
        <source>Rozepsaná práce se průběžně neukládá (%s): „%s“. Uložte ji raději hned.</source>
        <translation>Unsaved work is not being kept (%s): “%s”. Save it as soon as you can.</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVEDISKFULL">
        <source>disk je plný nebo je vyčerpána kvóta</source>
        <translation>the disk is full or a quota is used up</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVENOTALLOWED">
        <source>chybí práva nebo je disk jen ke čtení</source>
        <translation>rights are missing, or the disk is read-only</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVENOFOLDER">
        <source>složka neexistuje</source>
        <translation>the folder does not exist</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVESYSTEM">
        <source>systém hlásí: %s</source>
        <translation>the system says: %s</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVEFOREIGN">
        <source>místo souboru je tam odkaz, složka nebo něco cizího</source>
        <translation>in place of the file there is a link, a folder or somebody else’s file</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVETOOLARGE">
        <source>Rozepsaná práce se průběžně neukládá, je příliš velká. Uložte ji raději hned.</source>
        <translation>Unsaved work is not being kept, it is too large. Save it as soon as you can.</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\AUTOSAVEOVERUNREAD">
        <source>je tam starší rozepsaná práce, kterou nebylo možné přečíst</source>
        <translation>older unsaved work is there, which could not be read</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\UNSAVEDWORKNOTREAD">
        <source>Nelze přečíst, co tu zbylo z rozepsané práce (%s): „%s“. Co tam je, zůstane, a práce v tomto okně se zatím průběžně neukládá.</source>
        <translation>What is left here of unsaved work cannot be read (%s): “%s”. Whatever is there stays, and work in this window is not being kept for the time being.</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\CANNOTRESTOREBADFORMAT">
        <source>Bylo zjištěno, že poslední úpravy nebyly uloženy, k editace se však nelze vrátit, protože soubor má špatný formát</source>
        <translation>The last changes were not saved, but the editing cannot be resumed, because the file has a wrong format</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\UNSAVEDWORKHELD">
        <source>Rozepsanou práci z tohoto zdroje průběžně ukládá jiné okno. Práce v tomto okně se průběžně neukládá.</source>
        <translation>Unsaved work from this source is being kept by another window. Work in this window is not kept.</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\UNSAVEDWORKOFANOTHER">
        <source>Obnovená rozepsaná práce patří k jinému dokladu, než který jste otevřeli. Uloží se do onoho dokladu.</source>
        <translation>The unsaved work that was taken up belongs to another document than the one you opened. It will be saved into that document.</translation>
    </message>
    <!-- The line editor -->
    <message id="KORDAN30\MelvarkEditorEditWin\Form\Caption">
        <source>Melvark - editor</source>
        <translatorcomment>Shown only until the editor has its title.</translatorcomment>
        <translation>Melvark – editor</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\DODAKAPPTITLE">
        <source>Vložení položek dodacího listu</source>
        <translation>Insert delivery note lines</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\OBJEDNAVKYZBOZIAPPTITLE">
        <source>Vložení položek do objednávky zboží</source>
        <translation>Insert order lines</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VZOROBJEDNAVKYZBOZIAPPTITLE">
        <source>Vložení položek do vzorové objednávky zboží</source>
        <translation>Insert order template lines</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\NONE">
        <source>Žádný vzor</source>
        <translatorcomment>On the button of the column layouts when none is in force. It has little room.</translatorcomment>
        <translation>No layout</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\gbPraceScenami\Caption">
        <source> Způsob práce s cenami  </source>
        <translation> Prices  </translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\chbPrepocetCen\Caption">
        <source>&amp;po zadání hodnoty se ostatní údaje přepočítají</source>
        <translatorcomment>The letter is P: Alt+P sets the box from every cell of the grid.</translatorcomment>
        <translation>&amp;Prices and totals are recalculated after each entry</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\lblWarning\Caption">
        <source>Upozornění: pokud se hodnoty nepřepočítávají automaticky, data nelze uložit, pokud cena za jednotkové množství vynásobená množstvím není rovna celkové ceně položky!</source>
        <translation>Please note: without recalculation, lines can only be saved when the unit price times the quantity equals the line total!</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\OkBtn\Caption">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\OKDalsiBtn\Caption">
        <source>OK+Další</source>
        <translation>OK+Next</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\CancelBtn\Caption">
        <source>&amp;Zrušit</source>
        <translatorcomment>Not the letter C: Alt+C switches the recalculation off in the cells of the grid.</translatorcomment>
        <translation>Ca&amp;ncel</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\MenuBtn\Caption">
        <source>---</source>
        <translatorcomment>Shown only until the button has the name of a layout.</translatorcomment>
        <translation>---</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\NadpisVlastnostiSloupce\Caption">
        <source>Nadpis a vlastnosti sloupce</source>
        <translation>Column heading and properties</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\SkrytSloupec\Caption">
        <source>Skrýt sloupec</source>
        <translation>Hide column</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\EditovatelnySloupecAutomaticky\Caption">
        <source>Editovatelný - automaticky</source>
        <translation>Editable – Enter stops here</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\EditovatelnySloupecVyberem\Caption">
        <source>Editovatelný - výběrem</source>
        <translation>Editable – when selected</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\NeeditovatelnySloupec\Caption">
        <source>Needitovatelný</source>
        <translation>Not editable</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\SkryteSloupce\Caption">
        <source>Skryté sloupce</source>
        <translation>Hidden columns</translation>
    </message>
    <!-- The dialog of a column's heading -->
    <message id="KORDAN30\MelvarkEditorColumnPropWin\Form\Caption">
        <source>Vlastnosti sloupce</source>
        <translation>Column properties</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\lblCaption\Caption">
        <source>Titulek:</source>
        <translation>Heading:</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\lblHint\Caption">
        <source>Vyskakovací nápověda:</source>
        <translation>Hint:</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\lblAlign\Caption">
        <source>Zarovnání sloupce:</source>
        <translation>Alignment:</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\rbAlignLeft\Caption">
        <source>Zleva</source>
        <translation>Left</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\rbAlignCenter\Caption">
        <source>Doprostřed</source>
        <translation>Centre</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\rbAlignRight\Caption">
        <source>Zprava</source>
        <translation>Right</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\OkBtn\Caption">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorColumnPropWin\CancelBtn\Caption">
        <source>Zpět</source>
        <translation>Back</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\CAPTIONMANDATORY">
        <source>Titulek musí být vyplněn</source>
        <translation>Please enter a heading</translation>
    </message>
    <!-- The dialog of a layout's name -->
    <message id="KORDAN30\MelvarkEditorSettingsWin\Form\Caption">
        <source>Uložení nastavení</source>
        <translation>Save layout</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSettingsWin\lblNazev\Caption">
        <source>Název:</source>
        <translation>Name:</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSettingsWin\lblPopis\Caption">
        <source>Popis:</source>
        <translation>Description:</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSettingsWin\chbSdilene\Caption">
        <source>Zveřejnit - umožnit využívat i jiným uživatelům</source>
        <translation>Share – let other users use it too</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSettingsWin\OkBtn\Caption">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSettingsWin\CancelBtn\Caption">
        <source>Zpět</source>
        <translation>Back</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\NAMEMANDATORY">
        <source>Název musí být vyplněn</source>
        <translation>Please enter a name</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\PrejmenovatNastaveni\Caption">
        <source>Přejmenovat</source>
        <translation>Rename</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\UlozitNastaveni\Caption">
        <source>Uložit</source>
        <translation>Save</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\UlozitJakoNoveNastaveni\Caption">
        <source>Uložit jako nové</source>
        <translation>Save as new</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\SmazatNastaveni\Caption">
        <source>Smazat vybrané</source>
        <translation>Delete selected</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorEditWin\ObnovVychoziNastaveni\Caption">
        <source>Obnov výchozí</source>
        <translation>Restore default</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\DELETESELECTEDSETTINGS">
        <source>Smazat zvolené nastavení?</source>
        <translation>Delete the selected layout?</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\RESTORE">
        <source>Obnovit původní nastavení?</source>
        <translation>Restore the original layout?</translation>
    </message>
    <!-- The line editor's columns: caption and hint. A column is narrow: what tells it from the others stands first. -->
    <message id="KORDAN30\MELVARKEDITOR\COLUMNSKUPSPOL1">
        <source>Skup.sklad.pol.1</source>
        <translation>Stock group 1</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTSKUPSPOL1">
        <source>Skupina skladových položek 1</source>
        <translation>Stock group, level 1</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNSKUPSPOL2">
        <source>Skup.sklad.pol.2</source>
        <translation>Stock group 2</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTSKUPSPOL2">
        <source>Skupina skladových položek 2</source>
        <translation>Stock group, level 2</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNSKUPSPOL3">
        <source>Skup.sklad.pol.3</source>
        <translation>Stock group 3</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTSKUPSPOL3">
        <source>Skupina skladových položek 3</source>
        <translation>Stock group, level 3</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNSKLADPOL">
        <source>Skladová položka</source>
        <translation>Stock item</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTSKLADPOL">
        <source>Název skladové položky</source>
        <translation>Name of the stock item</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNSKLAD">
        <source>Sklad</source>
        <translation>Warehouse</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTSKLAD">
        <source>Sklad</source>
        <translation>Warehouse</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNMNOZSTVI">
        <source>Množství</source>
        <translation>Quantity</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTMNOZSTVI">
        <source>Množství</source>
        <translation>Quantity</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNDODAVATEL">
        <source>Dodavatel</source>
        <translation>Supplier</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTDODAVATEL">
        <source>Dodavatel</source>
        <translation>Supplier</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNOTKY">
        <source>Jednotky</source>
        <translation>Unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNOTKY">
        <source>Hlavní jednotky</source>
        <translation>Main unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNMNOZSTVI1">
        <source>Ved.množství 1</source>
        <translation>Sec. quantity 1</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTMNOZSTVI1">
        <source>Množství ve vedlejších jednotkách 1</source>
        <translation>Quantity in secondary unit 1</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNVEDJEDNOTKY1">
        <source>Ved.jednotky 1</source>
        <translation>Sec. unit 1</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTVEDJEDNOTKY1">
        <source>Vedlejší jednotky 1</source>
        <translation>Secondary unit 1</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNMNOZSTVI2">
        <source>Ved.množství 2</source>
        <translation>Sec. quantity 2</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTMNOZSTVI2">
        <source>Množství ve vedlejších jednotkách 2</source>
        <translation>Quantity in secondary unit 2</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNVEDJEDNOTKY2">
        <source>Ved.jednotky 2</source>
        <translation>Sec. unit 2</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTVEDJEDNOTKY2">
        <source>Vedlejší jednotky 2</source>
        <translation>Secondary unit 2</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNPOPIS">
        <source>Popis</source>
        <translation>Description</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTPOPIS">
        <source>Popis k položce objednávky</source>
        <translation>Description of the order line</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNKOMENTAR">
        <source>Komentář</source>
        <translation>Comment</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTKOMENTAR">
        <source>Komentář k položce objednávky</source>
        <translation>Comment on the order line</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNDPH">
        <source>Sazba DPH</source>
        <translation>VAT rate</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTDPH">
        <source>Sazba DPH</source>
        <translation>VAT rate</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNSLEVA">
        <source>Sleva</source>
        <translation>Discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTSLEVA">
        <source>Sleva v procentech</source>
        <translation>Discount in per cent</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENABEZDPHSESLEVOU">
        <source>Jedn.cena bez DPH se sl.</source>
        <translation>Unit excl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENABEZDPHSESLEVOU">
        <source>Cena bez DPH se slevou za jednotku množství</source>
        <translation>Price excluding VAT after discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENADPHASESLEVOU">
        <source>Jedn.DPH se sl.</source>
        <translation>Unit VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENADPHASESLEVOU">
        <source>DPH ceny se slevou za jednotku množství</source>
        <translation>VAT on the price after discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENADPHBSESLEVOU">
        <source>Jedn.místní DPH se sl.</source>
        <translation>Unit local VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENADPHBSESLEVOU">
        <source>Místní DPH ceny se slevou za jednotku množství</source>
        <translation>Local VAT on the price after discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENASDPHSESLEVOU">
        <source>Jedn.cena s DPH se sl.</source>
        <translation>Unit incl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENASDPHSESLEVOU">
        <source>Cena s DPH se slevou za jednotku množství</source>
        <translation>Price including VAT after discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENABEZDPHBEZSLEVY">
        <source>Jedn.cena bez DPH bez sl.</source>
        <translation>List excl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENABEZDPHBEZSLEVY">
        <source>Cena bez DPH bez slevy za jednotku množství</source>
        <translation>Price excluding VAT before discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENADPHABEZSLEVY">
        <source>Jedn.DPH bez sl.</source>
        <translation>List VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENADPHABEZSLEVY">
        <source>DPH ceny bez slevy za jednotku množství</source>
        <translation>VAT on the price before discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENADPHBBEZSLEVY">
        <source>Jedn.místní DPH bez sl.</source>
        <translation>List local VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENADPHBBEZSLEVY">
        <source>Místní DPH ceny bez slevy za jednotku množství</source>
        <translation>Local VAT on the price before discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNJEDNCENASDPHBEZSLEVY">
        <source>Jedn.cena s DPH bez sl.</source>
        <translation>List incl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTJEDNCENASDPHBEZSLEVY">
        <source>Cena s DPH bez slevy za jednotku množství</source>
        <translation>Price including VAT before discount, per unit</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENABEZDPHSESLEVOU">
        <source>Cena bez DPH se sl.</source>
        <translation>Total excl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENABEZDPHSESLEVOU">
        <source>Cena bez DPH se slevou za celkové množství</source>
        <translation>Total price excluding VAT after discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENADPHASESLEVOU">
        <source>DPH se sl.</source>
        <translation>Total VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENADPHASESLEVOU">
        <source>DPH ceny se slevou za celkové množství</source>
        <translation>VAT on the total price after discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENADPHBSESLEVOU">
        <source>Místní DPH se sl.</source>
        <translation>Total local VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENADPHBSESLEVOU">
        <source>Místní DPH ceny se slevou za celkové množství</source>
        <translation>Local VAT on the total price after discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENASDPHSESLEVOU">
        <source>Cena s DPH se sl.</source>
        <translation>Total incl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENASDPHSESLEVOU">
        <source>Cena s DPH se slevou za celkové množství</source>
        <translation>Total price including VAT after discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENABEZDPHBEZSLEVY">
        <source>Cena bez DPH bez sl.</source>
        <translation>List total excl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENABEZDPHBEZSLEVY">
        <source>Cena bez DPH bez slevy za celkové množství</source>
        <translation>Total price excluding VAT before discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENADPHABEZSLEVY">
        <source>DPH bez sl.</source>
        <translation>List total VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENADPHABEZSLEVY">
        <source>DPH ceny bez slevy za celkové množství</source>
        <translation>VAT on the total price before discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENADPHBBEZSLEVY">
        <source>Místní DPH bez sl.</source>
        <translation>List total local VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENADPHBBEZSLEVY">
        <source>Místní DPH ceny bez slevy za celkové množství</source>
        <translation>Local VAT on the total price before discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNCENASDPHBEZSLEVY">
        <source>Cena s DPH bez sl.</source>
        <translation>List total incl. VAT</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTCENASDPHBEZSLEVY">
        <source>Cena s DPH bez slevy za celkové množství</source>
        <translation>Total price including VAT before discount</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNTRVANLIVOST">
        <source>Trvanlivost</source>
        <translation>Best before</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\COLUMNHINTTRVANLIVOST">
        <source>Trvanlivost</source>
        <translation>Best before</translation>
    </message>
    <!-- The dialog in which the source is named -->
    <message id="KORDAN30\MelvarkEditorSelectWin\Form\Caption">
        <source>Výběr</source>
        <translation>Selection</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\lblSelect\Caption">
        <source>lblSelect</source>
        <translatorcomment>Never seen: every use of the dialog replaces it.</translatorcomment>
        <translation>lblSelect</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\SelectSpeedButton\Hint">
        <source>Vybrat ze seznamu (F5)</source>
        <translation>Choose from the list (F5)</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\lblPrenest\Caption">
        <source>Přenést:</source>
        <translation>Transfer:</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\chbMnozstvi\Caption">
        <source>množství</source>
        <translation>quantities</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\chbCeny\Caption">
        <source>ceny</source>
        <translation>prices</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\OkBtn\Caption">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorSelectWin\CancelBtn\Caption">
        <source>&amp;Zrušit</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\Form\Caption">
        <source>Multi výběr</source>
        <translation>Multiple selection</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\lblSelect1\Caption">
        <source>lblSelect1</source>
        <translatorcomment>Never seen: every use of the dialog replaces it.</translatorcomment>
        <translation>lblSelect1</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\lblSelect2\Caption">
        <source>lblSelect2</source>
        <translatorcomment>Never seen: every use of the dialog replaces it.</translatorcomment>
        <translation>lblSelect2</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\lblSelect3\Caption">
        <source>lblSelect3</source>
        <translatorcomment>Never seen: every use of the dialog replaces it.</translatorcomment>
        <translation>lblSelect3</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\SelectSpeedButton1\Hint">
        <source>Vybrat ze seznamu (F5)</source>
        <translation>Choose from the list (F5)</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\SelectSpeedButton2\Hint">
        <source>Vybrat ze seznamu (F5)</source>
        <translation>Choose from the list (F5)</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\SelectSpeedButton3\Hint">
        <source>Vybrat ze seznamu (F5)</source>
        <translation>Choose from the list (F5)</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\OkBtn\Caption">
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message id="KORDAN30\MelvarkEditorMultiSelectWin\CancelBtn\Caption">
        <source>&amp;Zrušit</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\SOURCENOTCONFIRMED">
        <source>Databáze zdroj nepotvrdila. Zadejte jiný zdroj.</source>
        <translation>The database did not confirm the source. Enter another source.</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\SKUPSKLADPOL1">
        <source>Skupina skladových položek 1:</source>
        <translation>Stock group 1:</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\SKUPSKLADPOL2">
        <source>Skupina skladových položek 2:</source>
        <translation>Stock group 2:</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\SKUPSKLADPOL3">
        <source>Skupina skladových položek 3:</source>
        <translation>Stock group 3:</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\ORDERSELECTION">
        <source>Výběr objednávky</source>
        <translation>Select an order</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\ORDERNUMBER">
        <source>Číslo objednávky:</source>
        <translation>Order number:</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\DELIVERYNOTESELECTION">
        <source>Výběr dodacího listu</source>
        <translation>Select a delivery note</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\DELIVERYNOTENUMBER">
        <source>Číslo dodacího listu:</source>
        <translation>Delivery note number:</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\ORDERPATTERNSELECTION|Výběr vzoru objednávky">
        <source>Výběr vzoru objednávky</source>
        <translation>Select an order template</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\ORDERPATTERNSELECTION|Výběr skupin skladových položek">
        <source>Výběr skupin skladových položek</source>
        <translation>Select stock groups</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\ORDERPATTERNNUMBER">
        <source>Číslo vzoru objednávky:</source>
        <translation>Order template number:</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\SUPPLIERSELECTION">
        <source>Výběr dodavatele</source>
        <translation>Select a supplier</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\SUPPLIERNAME">
        <source>Jméno dodavatele:</source>
        <translation>Supplier name:</translation>
    </message>
    <!-- Ways to fill a delivery note -->
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEOBJEDNAVKY">
        <source>Vložit položky na základě objednávky</source>
        <translation>Insert lines from an order</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEOBJEDNAVKYHINT">
        <source>Zobrazí editor položek dodacího listu a seznam předvyplní položkami z objednávky, kterou si uživatel zvolí v editoru</source>
        <translation>Opens the delivery note line editor and fills it with the lines of an order that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEDODAKU">
        <source>Vložit položky na základě dodacího listu</source>
        <translation>Insert lines from a delivery note</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEDODAKUHINT">
        <source>Zobrazí editor položek dodacího listu a seznam předvyplní položkami z dodacího listu, který si uživatel zvolí v editoru</source>
        <translation>Opens the delivery note line editor and fills it with the lines of a delivery note that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEMELVARK">
        <source>Vložit položky pomocí šablony dodacího listu</source>
        <translation>Insert lines from the latest delivery notes</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYDODAKUNAZAKLADEMELVARKHINT">
        <source>Zobrazí editor položek dodacího listu a seznam předvyplní položkami z posledních dodacích listů</source>
        <translation>Opens the delivery note line editor and fills it with the lines of the supplier’s latest delivery notes</translation>
    </message>
    <!-- Ways to fill a supplier order. The last two share their keys on purpose and are told apart by their Czech text. -->
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEOBJEDNAVKY">
        <source>Vložit položky z objednávky</source>
        <translation>Insert lines from an order</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEOBJEDNAVKYHINT">
        <source>Zobrazí editor položek objednávky a seznam předvyplní položkami z objednávky, kterou si uživatel zvolí v editoru</source>
        <translation>Opens the order line editor and fills it with the lines of an order that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEVZORUOBJEDNAVKY">
        <source>Vložit položky ze vzoru objednávky</source>
        <translation>Insert lines from an order template</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEVZORUOBJEDNAVKYHINT">
        <source>Zobrazí editor položek objednávky a seznam předvyplní položkami ze vzoru objednávky, který si uživatel zvolí v editoru</source>
        <translation>Opens the order line editor and fills it with the lines of an order template that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEDODAKU">
        <source>Vložit položky z dodacího listu</source>
        <translation>Insert lines from a delivery note</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEDODAKUHINT">
        <source>Zobrazí editor položek objednávky a seznam předvyplní položkami z dodacího listu, který si uživatel zvolí v editoru</source>
        <translation>Opens the order line editor and fills it with the lines of a delivery note that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEMELVARK">
        <source>Vložit položky pomocí šablony objednávky</source>
        <translation>Insert lines from the latest orders</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJNAZAKLADEMELVARKHINT">
        <source>Zobrazí editor položek objednávky a seznam předvyplní položkami z posledních objednávek</source>
        <translation>Opens the order line editor and fills it with the lines of the supplier’s latest orders</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLESKUPSKLADPOL">
        <source>Vložit položky dle skupin skladových položek</source>
        <translation>Insert lines by stock groups</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLESKUPSKLADPOLHINT">
        <source>Zobrazí editor položek objednávky a seznam předvyplní položkami zadaných skupin skladových položek, které si uživatel zvolí v editoru</source>
        <translation>Opens the order line editor and fills it with the items of stock groups that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL|Vložit položky dle ceníku dodavatele">
        <source>Vložit položky dle ceníku dodavatele</source>
        <translation>Insert lines from a supplier’s price list</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLEDLESKUPSKLADPOLHINT|Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami na které má vazbu zvolený dodavatel dle data a času objednání">
        <source>Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami na které má vazbu zvolený dodavatel dle data a času objednání</source>
        <translation>Opens the order line editor and fills it with the items that the chosen supplier lists at the order’s date and time</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLEDLESKUPSKLADPOL|Vložit položky dle dodávek dodavatele">
        <source>Vložit položky dle dodávek dodavatele</source>
        <translation>Insert lines from a supplier’s deliveries</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYOBJDLEDLESKUPSKLADPOLHINT|Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami z dodacích listů zvoleného dodavatele za období nastavené v globálním parametru">
        <source>Zobrazí editor položek objednávky a seznam předvyplní skladovými položkami z dodacích listů zvoleného dodavatele za období nastavené v globálním parametru</source>
        <translation>Opens the order line editor and fills it with the items of the chosen supplier’s delivery notes within the period set for the company</translation>
    </message>
    <!-- Ways to fill an order template. Two pairs share their keys on purpose and are told apart by their Czech text. -->
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKY|Vložit položky z objednávky">
        <source>Vložit položky z objednávky</source>
        <translation>Insert lines from an order</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKYHINT|Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z objednávky, kterou si uživatel zvolí v editoru">
        <source>Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z objednávky, kterou si uživatel zvolí v editoru</source>
        <translation>Opens the order template line editor and fills it with the lines of an order that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKY|Vložit položky ze vzoru objednávky">
        <source>Vložit položky ze vzoru objednávky</source>
        <translation>Insert lines from an order template</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUNAZAKLADEOBJEDNAVKYHINT|Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami ze vzoru objednávky, který si uživatel zvolí v editoru">
        <source>Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami ze vzoru objednávky, který si uživatel zvolí v editoru</source>
        <translation>Opens the order template line editor and fills it with the lines of an order template that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUNAZAKLADEDODAKU">
        <source>Vložit položky z dodacího listu</source>
        <translation>Insert lines from a delivery note</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUNAZAKLADEDODAKUHINT">
        <source>Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami z dodacího listu, který si uživatel zvolí v editoru</source>
        <translation>Opens the order template line editor and fills it with the lines of a delivery note that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUDLESKUPSKLADPOL|Vložit položky dle skupin skladových položek">
        <source>Vložit položky dle skupin skladových položek</source>
        <translation>Insert lines by stock groups</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUDLESKUPSKLADPOLHINT|Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami zadaných skupin skladových položek, které si uživatel zvolí v editoru">
        <source>Zobrazí editor položek vzoru objednávky a seznam předvyplní položkami zadaných skupin skladových položek, které si uživatel zvolí v editoru</source>
        <translation>Opens the order template line editor and fills it with the items of stock groups that you choose there</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUDLESKUPSKLADPOL|Vložit položky dle ceníku dodavatele">
        <source>Vložit položky dle ceníku dodavatele</source>
        <translation>Insert lines from a supplier’s price list</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUDLESKUPSKLADPOLHINT|Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami na které má vazbu zvolený dodavatel v aktuálni datum a čas">
        <source>Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami na které má vazbu zvolený dodavatel v aktuálni datum a čas</source>
        <translation>Opens the order template line editor and fills it with the items that the chosen supplier lists at the current date and time</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUDLESKUPSKLADPOL|Vložit položky dle dodávek dodavatele">
        <source>Vložit položky dle dodávek dodavatele</source>
        <translation>Insert lines from a supplier’s deliveries</translation>
    </message>
    <message id="KORDAN30\MELVARKEDITOR\VLOZPOLOZKYVZORUDLESKUPSKLADPOLHINT|Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami z dodacích listů zvoleného dodavatele za období nastavené v globálním parametru">
        <source>Zobrazí editor položek vzoru objednávky a seznam předvyplní skladovými položkami z dodacích listů zvoleného dodavatele za období nastavené v globálním parametru</source>
        <translation>Opens the order template line editor and fills it with the items of the chosen supplier’s delivery notes within the period set for the company</translation>
    </message>
</context>
</TS>
