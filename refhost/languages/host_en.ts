<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="cs">
<context>
    <name></name>
    <message id="MELVARKHOST\MAIN\TITLE">
        <source>Melvark – nákup a sklad</source>
        <translation>Melvark – purchasing and stock</translation>
    </message>
    <message id="MELVARKHOST\MAIN\FILE">
        <source>&amp;Soubor</source>
        <translation>&amp;File</translation>
    </message>
    <message id="MELVARKHOST\MAIN\DOCUMENT">
        <source>&amp;Doklad</source>
        <translation>&amp;Document</translation>
    </message>
    <message id="MELVARKHOST\MAIN\VIEW">
        <source>&amp;Zobrazit</source>
        <translation>&amp;View</translation>
    </message>
    <message id="MELVARKHOST\MAIN\REFRESH">
        <source>&amp;Obnovit</source>
        <translation>&amp;Refresh</translation>
    </message>
    <message id="MELVARKHOST\MAIN\REPORT">
        <source>&amp;Hlášení o chybě</source>
        <translation>Re&amp;port a problem</translation>
    </message>
    <message id="MELVARKHOST\MAIN\REPORTWRITTEN">
        <source>Hlášení o chybě je v souboru „%1“. Pošlete je svému správci. Jsou v něm verze, nastavení a poslední volání, nejsou v něm hesla, připojení ani obsah dokladů.</source>
        <translation>The report on the problem is in the file “%1”. Send it to your administrator. It has versions, settings and the last calls, and no passwords, connections or contents of documents.</translation>
    </message>
    <message id="MELVARKHOST\MAIN\QUIT">
        <source>&amp;Konec</source>
        <translation>&amp;Quit</translation>
    </message>
    <message id="MELVARKHOST\MAIN\INSERTLINES">
        <source>&amp;Vložit položky</source>
        <translation>&amp;Insert lines</translation>
    </message>
    <message id="MELVARKHOST\MAIN\INSERTLINESHINT">
        <source>Hromadně vloží položky do vybraného dokladu (F8)</source>
        <translation>Inserts lines into the selected document in bulk (F8)</translation>
    </message>
    <message id="MELVARKHOST\MAIN\SCREENS">
        <source>Obrazovky</source>
        <translation>Screens</translation>
    </message>
    <message id="MELVARKHOST\MAIN\SEARCH">
        <source>&amp;Hledat</source>
        <translation>&amp;Search</translation>
    </message>
    <message id="MELVARKHOST\MAIN\USER">
        <source>Uživatel: %1</source>
        <translation>User: %1</translation>
    </message>
    <message id="MELVARKHOST\MAIN\DATABASE">
        <source>Databáze: %1</source>
        <translation>Database: %1</translation>
    </message>
    <message id="MELVARKHOST\MAIN\NEWDOCUMENTS">
        <source>Nové doklady: %1</source>
        <translation>New documents: %1</translation>
    </message>
    <message id="MELVARKHOST\MAIN\PLUGINMISSING">
        <source>Vkládání položek není k dispozici. %1</source>
        <translation>Inserting lines is not available. %1</translation>
    </message>
    <message id="MELVARKHOST\MAIN\UPGRADED">
        <source>Databáze byla převedena pro novou verzi programu. Jak vypadala předtím, zůstalo v souboru „%1“.</source>
        <translation>The database was upgraded for the new version of the program. What it was like before is kept in file “%1”.</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\DODAK">
        <source>Dodací listy</source>
        <translation>Delivery notes</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\DODOBJ">
        <source>Objednávky</source>
        <translation>Orders</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\DODOBJVZOR">
        <source>Vzory objednávek</source>
        <translation>Order templates</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\LINES">
        <source>Položky dokladu %1</source>
        <translation>Lines of document %1</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\NODOCUMENT">
        <source>Není vybrán žádný doklad</source>
        <translation>No document is selected</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\DOCUMENTLIST">
        <source>Seznam dokladů</source>
        <translation>List of documents</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\LINELIST">
        <source>Položky dokladu</source>
        <translation>Lines of the document</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\UNKNOWN">
        <source>Obrazovka „%1“ neexistuje. Možnosti jsou DODAK, DODOBJ a DODOBJVZOR.</source>
        <translation>There is no screen “%1”. The screens are DODAK, DODOBJ and DODOBJVZOR.</translation>
    </message>
    <message id="MELVARKHOST\SCREEN\UNKNOWNDOCUMENT">
        <source>Doklad s číslem záznamu %1 na této obrazovce není.</source>
        <translation>This screen has no document with record number %1.</translation>
    </message>
    <message id="MELVARKHOST\LIST\SEARCHPLACEHOLDER">
        <source>Hledejte psaním…</source>
        <translation>Type to search…</translation>
    </message>
    <message id="MELVARKHOST\LIST\SEARCHNAME">
        <source>Hledaný text</source>
        <translation>Searched text</translation>
    </message>
    <message id="MELVARKHOST\LIST\ROWCOUNT">
        <source>%1 z %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message id="MELVARKHOST\LIST\ROWCOUNTSOFAR">
        <source>%1 z %2, další se načítají…</source>
        <translation>%1 of %2, more are being read…</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\TITLE">
        <source>Výběr ze seznamu</source>
        <translation>Choose from the list</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\LIST">
        <source>Nabízené záznamy</source>
        <translation>Offered records</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\PICK">
        <source>&amp;Vybrat</source>
        <translation>&amp;Choose</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\CANCEL">
        <source>&amp;Zrušit</source>
        <translation>C&amp;ancel</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\EMPTY">
        <source>Seznam neobsahuje žádný vhodný záznam.</source>
        <translation>The list has no suitable record.</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\UNKNOWN">
        <source>Seznam „%1“ tento program nemá.</source>
        <translation>This program has no list “%1”.</translation>
    </message>
    <message id="MELVARKHOST\LOOKUP\NOCOLUMN">
        <source>Seznam „%1“ nemá sloupec %2.</source>
        <translation>The list “%1” has no column %2.</translation>
    </message>
    <message id="MELVARKHOST\BOX\ERROR">
        <source>Chyba</source>
        <translation>Error</translation>
    </message>
    <message id="MELVARKHOST\BOX\QUESTION">
        <source>Potvrzení</source>
        <translation>Confirmation</translation>
    </message>
    <message id="MELVARKHOST\BOX\NOTE">
        <source>Upozornění</source>
        <translation>Note</translation>
    </message>
    <message id="MELVARKHOST\ERROR\DETAILS">
        <source>&amp;Podrobnosti</source>
        <translation>&amp;Details</translation>
    </message>
    <message id="MELVARKHOST\ERROR\DETAILSNAME">
        <source>Podrobnosti chyby</source>
        <translation>Details of the error</translation>
    </message>
    <message id="MELVARKHOST\ERROR\REPORT">
        <source>&amp;Hlášení o chybě</source>
        <translation>Re&amp;port a problem</translation>
    </message>
    <message id="MELVARKHOST\ERROR\COPY">
        <source>&amp;Kopírovat</source>
        <translation>&amp;Copy</translation>
    </message>
    <message id="MELVARKHOST\ERROR\CLOSE">
        <source>&amp;Zavřít</source>
        <translation>C&amp;lose</translation>
    </message>
    <message id="MELVARKHOST\ERROR\UNEXPECTED">
        <source>Nastala neočekávaná chyba. Program běží dál, poslední krok se neprovedl.</source>
        <translation>An unexpected error occurred. The program goes on, the last step was not done.</translation>
    </message>
    <message id="MELVARKHOST\ERROR\CODE">
        <source>Kód: %1</source>
        <translation>Code: %1</translation>
    </message>
    <message id="MELVARKHOST\ERROR\ORIGINAL">
        <source>Původní znění: %1</source>
        <translation>Original wording: %1</translation>
    </message>
    <message id="MELVARKHOST\ERROR\LINE">
        <source>Řádek %1: %2</source>
        <translation>Line %1: %2</translation>
    </message>
    <message id="MELVARKHOST\ERROR\KIND">
        <source>Druh: %1</source>
        <translation>Kind: %1</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\TITLE">
        <source>Prosím čekejte</source>
        <translation>Please wait</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\WAITING">
        <source>Databáze ještě pracuje.</source>
        <translation>The database is still working.</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\ROWS">
        <source>Ukládají se řádky, odesláno: %1</source>
        <translation>Saving the lines, sent: %1</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\CLOSING">
        <source>Doklad se ukládá. To už nejde zastavit.</source>
        <translation>The document is being saved. It cannot be stopped any more.</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\STOPPING">
        <source>Zastavuje se…</source>
        <translation>Stopping…</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\STOP">
        <source>&amp;Zastavit</source>
        <translation>&amp;Stop</translation>
    </message>
    <message id="MELVARKHOST\PROGRESS\STOPPED">
        <source>Práce byla zastavena.</source>
        <translation>The work was stopped.</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\NOTFOUND">
        <source>Modul „%1“ nebyl nalezen. Nainstalujte jej znovu vedle programu.</source>
        <translation>The module “%1” was not found. Install it again beside the program.</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\UNSAFE">
        <source>Modul „%1“ nebyl načten, protože „%2“ mohou měnit i jiní uživatelé. Nainstalujte jej znovu, nebo jim to právo odeberte.</source>
        <translation>The module “%1” was not loaded, because other users can change “%2”. Install it again, or take that right from them.</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\UNLOADABLE">
        <source>Modul „%1“ nelze načíst. Nainstalujte jej znovu. (%2)</source>
        <translation>The module “%1” cannot be loaded. Install it again. (%2)</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\NOENTRY">
        <source>Soubor „%1“ není modulem tohoto programu: chybí v něm vstupní bod %2.</source>
        <translation>The file “%1” is no module of this program: it lacks the entry point %2.</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\VERSION">
        <source>Modul „%1“ je pro jinou verzi programu (%2 místo %3). Nainstalujte jeho verzi vydanou s tímto programem.</source>
        <translation>The module “%1” is for another version of the program (%2 instead of %3). Install the module that was released with this program.</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\START">
        <source>Modul „%1“ se nepodařilo spustit. (%2)</source>
        <translation>The module “%1” could not be started. (%2)</translation>
    </message>
    <message id="MELVARKHOST\PLUGIN\NOCLASS">
        <source>Modul „%1“ neobsahuje třídu %2.</source>
        <translation>The module “%1” does not contain the class %2.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\CISLO">
        <source>Číslo</source>
        <translation>Number</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\NAZEV">
        <source>Název</source>
        <translation>Name</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JMENO">
        <source>Jméno</source>
        <translation>Name</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\ICO">
        <source>IČO</source>
        <translation>Company ID</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\MESTO">
        <source>Město</source>
        <translation>Town</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DATUM">
        <source>Datum</source>
        <translation>Date</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\OBJEDNANIDC">
        <source>Objednáno</source>
        <translation>Ordered</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DODAVATEL">
        <source>Dodavatel</source>
        <translation>Supplier</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\SKLAD">
        <source>Sklad</source>
        <translation>Warehouse</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\STAV">
        <source>Stav</source>
        <translation>State</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\POCETPOLOZEK">
        <source>Položek</source>
        <translation>Lines</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\CENACELKEM">
        <source>Cena celkem</source>
        <translation>Total price</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\NADRIZENA">
        <source>Nadřízená skupina</source>
        <translation>Parent group</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\PORADI">
        <source>Pořadí</source>
        <translation>Position</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\SKUPSPOL1">
        <source>Skupina 1</source>
        <translation>Group 1</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\SKUPSPOL2">
        <source>Skupina 2</source>
        <translation>Group 2</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\SKUPSPOL3">
        <source>Skupina 3</source>
        <translation>Group 3</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\SKLADPOL">
        <source>Skladová položka</source>
        <translation>Stock item</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\MNOZSTVI">
        <source>Množství</source>
        <translation>Quantity</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNOTKY">
        <source>Jednotky</source>
        <translation>Unit</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DODANO">
        <source>Dodáno</source>
        <translation>Delivered</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DPH">
        <source>Sazba DPH</source>
        <translation>VAT rate</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\SLEVA">
        <source>Sleva %</source>
        <translation>Discount %</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNCENABSESLEVOU">
        <source>Jedn. cena bez DPH se sl.</source>
        <translation>Unit price excl. VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNDPHASESLEVOU">
        <source>Jedn. DPH se sl.</source>
        <translation>Unit VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNDPHBSESLEVOU">
        <source>Jedn. místní DPH se sl.</source>
        <translation>Unit local VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNCENASSESLEVOU">
        <source>Jedn. cena s DPH se sl.</source>
        <translation>Unit price incl. VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNCENABBEZSLEVY">
        <source>Jedn. cena bez DPH bez sl.</source>
        <translation>Unit price excl. VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNDPHABEZSLEVY">
        <source>Jedn. DPH bez sl.</source>
        <translation>Unit VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNDPHBBEZSLEVY">
        <source>Jedn. místní DPH bez sl.</source>
        <translation>Unit local VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\JEDNCENASBEZSLEVY">
        <source>Jedn. cena s DPH bez sl.</source>
        <translation>Unit price incl. VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\CENABSESLEVOU">
        <source>Cena bez DPH se sl.</source>
        <translation>Price excl. VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DPHASESLEVOU">
        <source>DPH se sl.</source>
        <translation>VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DPHBSESLEVOU">
        <source>Místní DPH se sl.</source>
        <translation>Local VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\CENASSESLEVOU">
        <source>Cena s DPH se sl.</source>
        <translation>Price incl. VAT after disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\CENABBEZSLEVY">
        <source>Cena bez DPH bez sl.</source>
        <translation>Price excl. VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DPHABEZSLEVY">
        <source>DPH bez sl.</source>
        <translation>VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DPHBBEZSLEVY">
        <source>Místní DPH bez sl.</source>
        <translation>Local VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\CENASBEZSLEVY">
        <source>Cena s DPH bez sl.</source>
        <translation>Price incl. VAT before disc.</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\TRVANLIVOST">
        <source>Trvanlivost</source>
        <translation>Best before</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\DOBSID">
        <source>Řádek objednávky</source>
        <translation>Order line</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\POPIS">
        <source>Popis</source>
        <translation>Description</translation>
    </message>
    <message id="MELVARKHOST\COLUMN\KOMENTAR">
        <source>Komentář</source>
        <translation>Comment</translation>
    </message>
    <message id="MELVARKHOST\STATE|otevřený">
        <source>otevřený</source>
        <translation>open</translation>
    </message>
    <message id="MELVARKHOST\STATE|uzavřený">
        <source>uzavřený</source>
        <translation>closed</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\COMPANYMISSING">
        <source>%4</source>
        <translation>%4</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\PROCEDUREMISSING">
        <source>Procedura %1 chybí. Vytvořte ji.</source>
        <translation>The procedure %1 is missing. Create it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SAVESUNIDENTIFIED">
        <source>Procedura %1 chybí: když se spojení při ukládání přeruší, nepozná se, zda je doklad uložený. Vytvořte ji.</source>
        <translation>The procedure %1 is missing: when the link is lost in a save, nobody can tell whether the document is saved. Create it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\GIVENUPACCEPTED">
        <source>Procedura %1 uzavřela ukládání, které bylo předtím vzdáno. Odmítněte je.</source>
        <translation>The procedure %1 closed a save that had been given up before. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\PROCEDUREUNUSABLE">
        <source>Procedura %1 nemůže běžet. Opravte ji. (%4)</source>
        <translation>The procedure %1 cannot run. Mend it. (%4)</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\PROCEDUREAMBIGUOUS">
        <source>Jméno %1 nese víc procedur (%4). Ponechte jen jednu.</source>
        <translation>Several procedures bear the name %1 (%4). Keep one of them.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\PARAMETERMISSING">
        <source>Procedura %1 nemá parametr %2 (%3). Přidejte jej.</source>
        <translation>The procedure %1 has no parameter %2 (%3). Add it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\PARAMETERTYPE">
        <source>Parametr %2 procedury %1 má typ %4. Změňte jej na %3.</source>
        <translation>The parameter %2 of the procedure %1 has the type %4. Make it %3.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\PARAMETERNEEDED">
        <source>Parametr %2 procedury %1 nejde vynechat. Přidejte mu %3.</source>
        <translation>The parameter %2 of the procedure %1 cannot be left out. Give it a %3.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\OUTPUTMISSING">
        <source>Procedura %1 nemá výstupní parametr %2 (%3). Přidejte jej.</source>
        <translation>The procedure %1 has no output parameter %2 (%3). Add it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\OUTPUTTYPE">
        <source>Výstupní parametr %2 procedury %1 má typ %4. Změňte jej na %3.</source>
        <translation>The output parameter %2 of the procedure %1 has the type %4. Make it %3.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SETMISSING">
        <source>Procedura %1 vrací málo výsledků: %4, čeká se %3. Doplňte chybějící.</source>
        <translation>The procedure %1 brings too few result sets: %4, where %3 are expected. Add what is missing.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\COLUMNMISSING">
        <source>Výsledek procedury %1 nemá sloupec %2 (%3). Přidejte jej.</source>
        <translation>The result of the procedure %1 has no column %2 (%3). Add it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\COLUMNTYPE">
        <source>Sloupec %2 ve výsledku procedury %1 má typ %4. Vracejte %3.</source>
        <translation>The column %2 in the result of the procedure %1 has the type %4. Return %3.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\VIEWUNUSABLE">
        <source>Pohled %1 nejde číst. Vytvořte jej, nebo opravte. (%4)</source>
        <translation>The view %1 cannot be read. Create or mend it. (%4)</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\VIEWCOLUMNMISSING">
        <source>Pohled %1 nemá sloupec %2 (%3). Přidejte jej.</source>
        <translation>The view %1 has no column %2 (%3). Add it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\VIEWCOLUMNTYPE">
        <source>Sloupec %2 pohledu %1 má typ %4. Vracejte %3.</source>
        <translation>The column %2 of the view %1 has the type %4. Return %3.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\QUERYUNUSABLE">
        <source>Dotaz „%1“ nejde položit. Opravte pohled, který čte. (%4)</source>
        <translation>The query “%1” cannot be asked. Mend the view that it reads. (%4)</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\QUERYORDER">
        <source>Dotaz „%1“ neřadí česky: místo %3 dává %4. Dejte sloupci %2 české řazení.</source>
        <translation>The query “%1” does not sort by Czech rules: it gives %4 in place of %3. Give the column %2 a Czech collation.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\FUNCTIONUNUSABLE">
        <source>Funkci %1 nejde zavolat tak, jak stojí v podmínce „%2“. Vytvořte ji, nebo opravte. (%4)</source>
        <translation>The function %1 cannot be called as it stands in the condition “%2”. Create or mend it. (%4)</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\ROLEMISSING">
        <source>Role %1 chybí. Založte ji.</source>
        <translation>The role %1 is missing. Create it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\ROLEOUTSIDE">
        <source>Role %1 nesmí do schématu melvark. Dejte jí na ně právo usage.</source>
        <translation>The role %1 may not enter the schema melvark. Grant it usage there.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\ROLEMAYNOTCALL">
        <source>Role %1 nesmí volat %2. Dejte jí právo execute.</source>
        <translation>The role %1 may not call %2. Grant it execute.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\ROLEMAYNOTREAD">
        <source>Role %1 nesmí číst %2. Dejte jí právo select.</source>
        <translation>The role %1 may not read %2. Grant it select.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\ROLEMAYWRITE">
        <source>Role %1 smí přímo měnit %2, mimo procedury. Odeberte jí to právo.</source>
        <translation>The role %1 may change %2 itself, past the procedures. Revoke that right.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\MISSINGDOCUMENTACCEPTED">
        <source>Procedura %1 přijala doklad, který není. Odmítněte jej.</source>
        <translation>The procedure %1 accepted a document that there is not. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\ANSWERWRONG">
        <source>Procedura %1 dala v %2 hodnotu „%4“ místo „%3“. Opravte ji.</source>
        <translation>The procedure %1 gave “%4” in %2 where “%3” is right. Mend it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\DISCOUNTACCEPTED">
        <source>Procedura %1 přijala slevu nad 100. Odmítněte ji.</source>
        <translation>The procedure %1 accepted a discount above 100. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SAVENOTBEGUN">
        <source>Procedura %1 přijala řádek, aniž bylo ukládání zahájeno. Odmítněte jej.</source>
        <translation>The procedure %1 accepted a row though no save was begun. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SAVENOTBEGUNCHANGES">
        <source>Procedura %1 převzala řádky ukládání, které nikdo nezahájil (%4). Odmítněte je.</source>
        <translation>The procedure %1 took over rows of a save that nobody began (%4). Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SAVEREFUSED">
        <source>Procedura %1 odmítla platná data: %4 Přijměte je.</source>
        <translation>The procedure %1 refused valid data: %4 Accept them.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\EMPTYSAVECHANGES">
        <source>Procedura %1 změnila doklad, ač nebylo co uložit (%4). Nechte jej být.</source>
        <translation>The procedure %1 changed the document though there was nothing to save (%4). Leave it alone.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SAVEDLINESWRONG">
        <source>Po volání %1 přibyly řádky s množstvím „%4“ místo „%3“. Uložte je všechny a v pořadí.</source>
        <translation>After %1 there were new lines of “%4” where “%3” is right. Save all of them, in their order.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\CLOSINGTWICEDOUBLES">
        <source>Opakované volání %1 uložilo řádky znovu (%4). Po úspěchu je vyprázdněte.</source>
        <translation>A second call of %1 saved the rows again (%4). Empty them after a success.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\BEGINKEEPSROWS">
        <source>Procedura %1 převzala i řádky předchozího ukládání (%4). Nové ukládání je musí vyprázdnit.</source>
        <translation>The procedure %1 took over rows of the save before, too (%4). A new save has to empty them.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\UNKNOWNITEMACCEPTED">
        <source>Procedura %1 přijala položku, která není. Odmítněte ji.</source>
        <translation>The procedure %1 accepted an item that there is not. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\CLOSEDAFTERREFUSAL">
        <source>Procedura %1 uzavřela ukládání, jehož řádek byl odmítnut. Odmítněte je.</source>
        <translation>The procedure %1 closed a save whose row was refused. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SAVEDINPART">
        <source>Procedura %1 uložila část odmítnutého ukládání (%4). Uložte vše, nebo nic.</source>
        <translation>The procedure %1 saved a part of a refused save (%4). Save all or nothing.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SESSIONSMIXED">
        <source>Procedura %1 převzala řádky jiné relace (%4). Každá relace má své.</source>
        <translation>The procedure %1 took over rows of another session (%4). Each session has its own.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SESSIONLOST">
        <source>Procedura %1 uložila po práci jiné relace „%4“ místo „%3“. Každá relace má své řádky.</source>
        <translation>After another session's work the procedure %1 saved “%4” where “%3” is right. Each session has its own rows.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\TAKENNAMEACCEPTED">
        <source>Procedura %1 přijala jméno, které už nastavení má. Odmítněte je.</source>
        <translation>The procedure %1 accepted a name that a setting has already. Refuse it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\SETTINGNOTDELETED">
        <source>Nastavení zůstalo v seznamu i po volání %1. Smažte je.</source>
        <translation>The setting stayed in the list after %1. Delete it.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\WRITTENLINES">
        <source>Zapsáno: doklad %1, nové řádky: %2</source>
        <translation>Written: document %1, new lines: %2</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\WRITTENIDENTITIES">
        <source>Zapsáno: doklad %1, označení ukládání: %2</source>
        <translation>Written: document %1, identities of saves: %2</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\WRITTENSETTING">
        <source>Zapsáno: nastavení sloupců „%1“, nakonec zase smazané</source>
        <translation>Written: layout “%1”, deleted again at the end</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\WRITTENPLACEMENT">
        <source>Zapsáno: umístění okna pro druh editoru %1</source>
        <translation>Written: the window’s place for the kind of editor %1</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\FITS">
        <source>Databáze vyhovuje.</source>
        <translation>The database fits.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\COUNT">
        <source>Nevyhovuje, nálezů: %1</source>
        <translation>It does not fit, findings: %1</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\QUESTION">
        <source>Zkouška přidá do dokladu %1 řádky, které v něm zůstanou. Pokračovat? [a/n] </source>
        <translation>The trial adds lines to the document %1, which stay in it. Go on? [y/n] </translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\YES">
        <source>a</source>
        <translation>y</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\DECLINED">
        <source>Zkouška byla odmítnuta, databáze se nezkoušela.</source>
        <translation>The trial was declined; the database was not tried.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\NOITEM">
        <source>Doklad ani jeho šablona nemají řádek, který by šlo uložit znovu. Zvolte jiný doklad.</source>
        <translation>Neither the document nor its template has a line that could be saved once more. Choose another document.</translation>
    </message>
    <message id="MELVARKHOST\DBCHECK\MENDFIRST">
        <source>Zkouška neproběhla. Nejprve opravte nálezy.</source>
        <translation>The trial did not run. Mend the findings first.</translation>
    </message>
</context>
</TS>
