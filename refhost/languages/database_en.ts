<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="cs">
<context>
    <name></name>
    <!-- What was typed -->
    <message id="MELVARKHOST\REFUSAL\ML001">
        <source>Množství „%1“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku.</source>
        <translation>“%1” is not a number. Use digits and at most one decimal separator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML002">
        <source>Trvanlivost „%1“ není datum. Zapište existující den, měsíc a rok.</source>
        <translation>“%1” is not a date. Enter an existing day, month and year.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML003">
        <source>Hodnota „%1“ parametru … není celé číslo.</source>
        <translation>The value “%1” is not a whole number. Enter one from -2147483648 to 2147483647.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML004">
        <source>Hodnota „%1“ parametru … není ano ani ne. Zadejte 1, 0, true nebo false.</source>
        <translation>The value “%1” is neither yes nor no. Enter 1, 0, true or false.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML005">
        <source>Množství „%1“ je příliš dlouhé číslo. Zapište nejvýše 15 číslic před desetinnou čárkou a 50 za ní.</source>
        <translation>The number “%1” is too long. Enter at most 15 digits before the decimal separator and 50 after it.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML006">
        <source>Množství „%1“ má příliš mnoho desetinných míst. Zapište nejvýše ….</source>
        <translation>The number “%1” has too many decimals. Totals and discounts have at most 2, everything else at most 6.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML007">
        <source>Text v parametru … obsahuje znak NUL. Odstraňte jej.</source>
        <translation>A text contains a NUL character. Remove it.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML008">
        <source>Hodnota parametru … není číslo.</source>
        <translation>A value that has to be a number is none.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML009">
        <source>Text v parametru … není platné UTF-8. Opravte kódování.</source>
        <translation>A text is not valid UTF-8. Correct its encoding.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML009|Název „%1“ není platný text. Opravte jej.">
        <source>Název „%1“ není platný text. Opravte jej.</source>
        <translation>The name “%1” is not valid text. Correct it.</translation>
    </message>
    <!-- Documents -->
    <message id="MELVARKHOST\REFUSAL\ML010">
        <source>Dodací list s identifikátorem … neexistuje. Obnovte seznam a vyberte jiný.</source>
        <translation>The delivery note does not exist any more. Refresh the list and choose another one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML011">
        <source>Dodací list „%1“ je uzavřený. Otevřete jej, nebo vyberte jiný.</source>
        <translation>Delivery note “%1” is closed. Open it, or choose another one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML012">
        <source>Objednávka ani vzor objednávky s identifikátorem … neexistuje. Obnovte seznam a vyberte jiný doklad.</source>
        <translation>The order or order template does not exist any more. Refresh the list and choose another document.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML013|Objednávka „%1“ je uzavřená. Otevřete ji, nebo vyberte jinou.">
        <source>Objednávka „%1“ je uzavřená. Otevřete ji, nebo vyberte jinou.</source>
        <translation>Order “%1” is closed. Open it, or choose another one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML013|Vzor objednávky „%1“ je uzavřený. Otevřete jej, nebo vyberte jiný.">
        <source>Vzor objednávky „%1“ je uzavřený. Otevřete jej, nebo vyberte jiný.</source>
        <translation>Order template “%1” is closed. Open it, or choose another one.</translation>
    </message>
    <!-- Sources. The sentences of one code that differ in the kind of document are told apart by their Czech text. -->
    <message id="MELVARKHOST\REFUSAL\ML020">
        <source>Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.</source>
        <translation>No source is given. Type it, or choose it from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML021|Objednávka „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.">
        <source>Objednávka „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.</source>
        <translation>Order “%1” does not exist. Correct it, or choose from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML021|Vzor objednávky „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.">
        <source>Vzor objednávky „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.</source>
        <translation>Order template “%1” does not exist. Correct it, or choose from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML021|Dodací list „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.">
        <source>Dodací list „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.</source>
        <translation>Delivery note “%1” does not exist. Correct it, or choose from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML021|Dodavatel „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.">
        <source>Dodavatel „%1“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.</source>
        <translation>Supplier “%1” does not exist. Correct it, or choose from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML022">
        <source>Zapsáno je „%1“, ale vybráno bylo „%2“. Vyberte ze seznamu znovu.</source>
        <translation>“%1” is typed, but “%2” was chosen. Choose from the list again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML023">
        <source>Označení „%1“ má více záznamů. Vyberte ten správný ze seznamu.</source>
        <translation>Several records are called “%1”. Choose the right one from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML024|Objednávka „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.">
        <source>Objednávka „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.</source>
        <translation>Order “%1” belongs to another supplier than this document. Choose a document of the same supplier from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML024|Vzor objednávky „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.">
        <source>Vzor objednávky „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.</source>
        <translation>Order template “%1” belongs to another supplier than this document. Choose a document of the same supplier from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML024|Dodací list „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.">
        <source>Dodací list „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.</source>
        <translation>Delivery note “%1” belongs to another supplier than this document. Choose a document of the same supplier from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML024|Dodavatel „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.">
        <source>Dodavatel „%1“ patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.</source>
        <translation>Supplier “%1” belongs to another supplier than this document. Choose a document of the same supplier from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML025|Objednávka „%1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.">
        <source>Objednávka „%1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.</source>
        <translation>Order “%1” belongs to another warehouse than this document. Choose a document of the same warehouse from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML025|Vzor objednávky „%1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.">
        <source>Vzor objednávky „%1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.</source>
        <translation>Order template “%1” belongs to another warehouse than this document. Choose a document of the same warehouse from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML025|Dodací list „%1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.">
        <source>Dodací list „%1“ patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.</source>
        <translation>Delivery note “%1” belongs to another warehouse than this document. Choose a document of the same warehouse from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML026">
        <source>Objednávka „%1“ má už všechny položky dodané. Vyberte objednávku, na které něco zbývá.</source>
        <translation>Order “%1” has been delivered in full. Choose an order with something left to deliver.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML027|Objednávka „%1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.">
        <source>Objednávka „%1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.</source>
        <translation>Order “%1” is the document being edited. Choose another one as its source.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML027|Vzor objednávky „%1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.">
        <source>Vzor objednávky „%1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.</source>
        <translation>Order template “%1” is the document being edited. Choose another one as its source.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML027|Dodací list „%1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.">
        <source>Dodací list „%1“ je právě upravovaný doklad. Vyberte jako zdroj jiný.</source>
        <translation>Delivery note “%1” is the document being edited. Choose another one as its source.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML028">
        <source>Dodavatel „%1“ nemá k datu … žádný platný ceník. Vyberte jiného dodavatele.</source>
        <translation>Supplier “%1” has no price list that is valid on that day. Choose another supplier.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML029">
        <source>Dodavatel „%1“ v posledních měsících nic nedodal. Vyberte jiného dodavatele.</source>
        <translation>Supplier “%1” has delivered nothing in recent months. Choose another supplier.</translation>
    </message>
    <!-- Stock groups -->
    <message id="MELVARKHOST\REFUSAL\ML030">
        <source>Skupina …. úrovně „%1“ neexistuje. Opravte název, nebo ji vyberte ze seznamu.</source>
        <translation>Stock group “%1” does not exist on its level. Correct the name, or choose it from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML031">
        <source>Název „%1“ má více skupin …. úrovně. Vyberte tu správnou ze seznamu.</source>
        <translation>Several stock groups of this level are called “%1”. Choose the right one from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML032">
        <source>Zapsáno je „%1“, ale vybráno bylo „%2“. Vyberte ze seznamu znovu.</source>
        <translation>“%1” is typed, but “%2” was chosen. Choose from the list again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML033">
        <source>Není zadána žádná skupina. Zadejte skupinu aspoň jedné úrovně.</source>
        <translation>No stock group is given. Enter a group of at least one level.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML034">
        <source>Skupina …. úrovně „%1“ neleží pod skupinou „%2“. Vyberte skupiny, které k sobě patří.</source>
        <translation>Stock group “%1” does not lie under group “%2”. Choose groups that belong together.</translation>
    </message>
    <!-- Saving -->
    <message id="MELVARKHOST\REFUSAL\ML040">
        <source>Ukládání nebylo zahájeno. Uložte doklad znovu.</source>
        <translation>Saving was not begun. Save the document again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML041">
        <source>Předchozí ukládání bylo odmítnuto. Uložte doklad znovu.</source>
        <translation>Saving was refused before. Save the document again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML042">
        <source>Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte.</source>
        <translation>A line has no stock item. Enter one, or clear the line.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML043">
        <source>Skladová položka „%1“ neexistuje. Vyberte jinou.</source>
        <translation>Stock item “%1” does not exist. Choose another one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML044">
        <source>Sklad „%1“ neexistuje. Vyberte sklad ze seznamu.</source>
        <translation>Warehouse “%1” does not exist. Choose a warehouse from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML045">
        <source>Dodavatel „%1“ neexistuje. Vyberte dodavatele ze seznamu.</source>
        <translation>Supplier “%1” does not exist. Choose a supplier from the list.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML047">
        <source>Jednotka „%1“ nepatří k položce „%2“. Načtěte řádek znovu.</source>
        <translation>Unit “%1” is not a unit of item “%2”. Load the line again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML048">
        <source>Množství položky „%1“ nemá jednotku. Množství vymažte, nebo vyberte položku, která tu jednotku má.</source>
        <translation>The quantity of item “%1” has no unit. Clear the quantity, or choose an item that has this unit.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML049">
        <source>Řádek objednávky „%1“ neexistuje. Načtěte položky z objednávky znovu.</source>
        <translation>Order line “%1” does not exist any more. Load the lines from the order again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML050">
        <source>Řádek objednávky „%1“ je pro jinou položku než „%2“. Načtěte položky z objednávky znovu.</source>
        <translation>Order line “%1” is for another item than “%2”. Load the lines from the order again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML052">
        <source>Celková cena … položky „%1“ neodpovídá množství … krát jednotkové ceně …. Opravte jednu z nich.</source>
        <translation>A total price of item “%1” is not its quantity times its unit price. Correct one of them.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML053">
        <source>Sazba DPH „%1“ neplatí k datu … dodacího listu. Vyberte platnou sazbu.</source>
        <translation>VAT rate “%1” is not valid on the date of the delivery note. Choose a valid rate.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML054">
        <source>Položka „%1“ objednávky „%2“ už je dodaná celá. Načtěte položky z objednávky znovu.</source>
        <translation>Item “%1” of order “%2” has been delivered in full meanwhile. Load the lines from the order again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML055">
        <source>Zdrojový doklad s identifikátorem … neexistuje. Zvolte zdroj znovu.</source>
        <translation>The source document does not exist any more. Choose the source again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML056">
        <source>Označení ukládání „%1“ nemá 32 šestnáctkových číslic. Obraťte se na správce.</source>
        <translation>The identity “%1” of a save is not 32 hexadecimal digits. Ask your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML057">
        <source>Databáze neodpověděla, zda je doklad uložený. Uložte jej znovu, nic se nezapíše dvakrát.</source>
        <translation>The database did not answer whether the document is saved. Save it again; nothing will be written twice.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML057|Databáze neodpověděla, zda je doklad uložený. Podívejte se do něj, než jej uložíte znovu.">
        <source>Databáze neodpověděla, zda je doklad uložený. Podívejte se do něj, než jej uložíte znovu.</source>
        <translation>The database did not answer whether the document is saved. Look into it before you save it again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML058">
        <source>Doklad se už uložil s jinými řádky, než má editor. Zavřete editor a doplňte do dokladu jen to, co v něm chybí.</source>
        <translation>The document was saved already, with other lines than the editor has. Close the editor and add to the document only what it lacks.</translation>
    </message>
    <!-- Column layouts -->
    <message id="MELVARKHOST\REFUSAL\ML060">
        <source>Nastavení s identifikátorem … neexistuje nebo není sdílené. Vyberte jiné.</source>
        <translation>The layout does not exist or is not shared any more. Choose another one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML061">
        <source>Nastavení „%1“ patří jinému uživateli. Uložte si je jako nové.</source>
        <translation>Layout “%1” belongs to another user. Save it as a new one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML062">
        <source>Nastavení nemá název. Zapište jej.</source>
        <translation>The layout has no name. Enter one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML063">
        <source>Nastavení s názvem „%1“ už máte. Zvolte jiný název.</source>
        <translation>You already have a layout called “%1”. Choose another name.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML064">
        <source>Název „%1“ je delší než 100 znaků. Zkraťte jej.</source>
        <translation>The name “%1” is longer than 100 characters. Shorten it.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML065">
        <source>Druh editoru není zadán. Zadejte jej.</source>
        <translation>The kind of editor is not given. Give it.</translation>
    </message>
    <!-- The company's parameters, VAT and discounts -->
    <message id="MELVARKHOST\REFUSAL\ML070">
        <source>Počet měsíců „%1“ není celé číslo od 0 do 1200. Opravte parametr firmy.</source>
        <translation>The number of months “%1” is not a whole number from 0 to 1200. Correct the company’s parameter.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML071">
        <source>Časové pásmo „%1“ není známé. Opravte parametr firmy, například na Europe/Prague.</source>
        <translation>There is no time zone “%1”. Correct the company's parameter, for example to Europe/Prague.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML110">
        <source>Sazba DPH „%1“ neexistuje. Vyberte sazbu ze seznamu sazeb DPH.</source>
        <translation>VAT rate “%1” does not exist. Choose a rate from the list of VAT rates.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML111">
        <source>Sleva … % není přípustná. Zadejte slevu od 0 do 100 %.</source>
        <translation>The discount is out of range. Enter a discount from 0 to 100 %.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML112">
        <source>Cenu bez DPH nelze dopočítat z daně při sazbě 0 %. Zadejte nejprve cenu bez DPH.</source>
        <translation>At a VAT rate of 0 % no price follows from the VAT. Enter the price excluding VAT first.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML901">
        <source>Platnost ceníku se překrývá s jiným ceníkem téže položky a téhož dodavatele.</source>
        <translation>The validity of the price overlaps with another price of the same item and supplier.</translation>
    </message>
    <!-- The database itself -->
    <message id="MELVARKHOST\REFUSAL\ML910">
        <source>Databázi „%1“ právě používá někdo jiný. Zkuste to za chvíli znovu.</source>
        <translation>Somebody else is using database “%1” right now. Try again in a moment.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML910|Databázi „%1“ používá příliš mnoho uživatelů. Zkuste to za chvíli znovu.">
        <source>Databázi „%1“ používá příliš mnoho uživatelů. Zkuste to za chvíli znovu.</source>
        <translation>Too many people are using database “%1”. Try again in a moment.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML911">
        <source>Databáze „%1“ je jen pro čtení. Připojte se k databázi, do které se smí zapisovat.</source>
        <translation>Database “%1” is read-only. Connect to one that may be written to.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML911|Databáze „%1“ je jen pro čtení. Povolte zápis do souboru i do jeho složky.">
        <source>Databáze „%1“ je jen pro čtení. Povolte zápis do souboru i do jeho složky.</source>
        <translation>Database “%1” is read-only. Allow writing to the file and to its folder.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML912">
        <source>Soubor „%1“ není databáze, nebo je poškozený. Obnovte jej ze zálohy.</source>
        <translation>File “%1” is not a database or is damaged. Restore it from a backup.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML913">
        <source>Soubor „%1“ patří jinému programu. Zvolte jiný soubor.</source>
        <translation>File “%1” belongs to another program. Choose another file.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML913|Schéma „%1“ v databázi „%2“ patří jinému programu. Zvolte jinou databázi.">
        <source>Schéma „%1“ v databázi „%2“ patří jinému programu. Zvolte jinou databázi.</source>
        <translation>The schema “%1” in database “%2” belongs to another program. Choose another database.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML914">
        <source>Databáze „%1“ je starší než tento program. Převeďte ji příkazem melvark-host --upgrade-database.</source>
        <translation>Database “%1” is older than this program. Upgrade it with the command melvark-host --upgrade-database.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML914|Databáze „%1“ je novější než tento program. Nainstalujte program její verze.">
        <source>Databáze „%1“ je novější než tento program. Nainstalujte program její verze.</source>
        <translation>Database “%1” is newer than this program. Install the program of its version.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML914|Databáze „%1“ byla mezitím převedena na jinou verzi. Ukončete program a spusťte jej znovu.">
        <source>Databáze „%1“ byla mezitím převedena na jinou verzi. Ukončete program a spusťte jej znovu.</source>
        <translation>Database “%1” was upgraded to another version meanwhile. Quit the program and start it again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915">
        <source>Soubor databáze „%1“ nelze otevřít. Zkontrolujte jeho umístění a oprávnění.</source>
        <translation>“%1” cannot be opened. Check its location and permissions.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915|Složka „%1“ pro databázi neexistuje. Vytvořte ji, nebo zvolte jinou.">
        <source>Složka „%1“ pro databázi neexistuje. Vytvořte ji, nebo zvolte jinou.</source>
        <translation>The folder “%1” for the database does not exist. Create it, or choose another one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915|„%1“ je složka, ne soubor databáze. Zvolte jiný soubor.">
        <source>„%1“ je složka, ne soubor databáze. Zvolte jiný soubor.</source>
        <translation>“%1” is a folder, not a database file. Choose a file.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915|Soubor databáze „%1“ neexistuje. Zvolte jiný, nebo databázi vytvořte.">
        <source>Soubor databáze „%1“ neexistuje. Zvolte jiný, nebo databázi vytvořte.</source>
        <translation>The database file “%1” does not exist. Choose another one, or create the database.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915|Adresa databáze „%1“ není známá. Zadejte sqlite:SOUBOR nebo postgresql:PŘIPOJENÍ.">
        <source>Adresa databáze „%1“ není známá. Zadejte sqlite:SOUBOR nebo postgresql:PŘIPOJENÍ.</source>
        <translation>The database address “%1” is unknown. Enter sqlite:FILE or postgresql:CONNINFO.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915|Adresa databáze není srozumitelná. Zapište ji slovy jako host=SERVER dbname=NÁZEV.">
        <source>Adresa databáze není srozumitelná. Zapište ji slovy jako host=SERVER dbname=NÁZEV.</source>
        <translation>The database address cannot be understood. Write it in words like host=SERVER dbname=NAME.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML915|Databáze „%1“ na serveru není. Zkontrolujte její název, nebo ji nejprve vytvořte.">
        <source>Databáze „%1“ na serveru není. Zkontrolujte její název, nebo ji nejprve vytvořte.</source>
        <translation>There is no database “%1” on the server. Check its name, or create it first.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML916">
        <source>Spojení s databází „%1“ se přerušilo. Ověřte, co se stihlo uložit, a zkuste to znovu.</source>
        <translation>The connection to database “%1” was lost. Check what was saved and try again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML916|Databázi „%1“ nelze číst ani zapisovat. Zkontrolujte disk, na kterém leží.">
        <source>Databázi „%1“ nelze číst ani zapisovat. Zkontrolujte disk, na kterém leží.</source>
        <translation>Database “%1” can be neither read nor written. Check the disk that it lies on.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML916|Server databáze „%1“ není dostupný. Zkontrolujte jeho adresu a zda běží.">
        <source>Server databáze „%1“ není dostupný. Zkontrolujte jeho adresu a zda běží.</source>
        <translation>The database server “%1” cannot be reached. Check its address and whether it is running.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML917">
        <source>Databáze „%1“ odmítla přihlášení. Zkontrolujte jméno a heslo.</source>
        <translation>Database “%1” refused the login. Check the name and the password.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML918">
        <source>Databáze nemá proceduru „%1“. Obraťte se na správce.</source>
        <translation>The database has no procedure “%1”. Contact your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML919">
        <source>Procedura … nemá parametr ….</source>
        <translation>The procedure has no such parameter.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML920">
        <source>Dotaz není jedním čtecím příkazem: „%1“. Zadejte jeden příkaz select.</source>
        <translation>The query is not one reading statement: “%1”. Enter one select statement.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML921">
        <source>Databáze „%1“ už tabulky má. Zvolte prázdný soubor.</source>
        <translation>Database “%1” has its tables already. Choose an empty file.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML921|Databáze „%1“ už tabulky má. Zvolte prázdnou databázi.">
        <source>Databáze „%1“ už tabulky má. Zvolte prázdnou databázi.</source>
        <translation>Database “%1” has its tables already. Choose an empty database.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML922">
        <source>Databáze „%1“ nemá tabulky. Nejprve ji vytvořte.</source>
        <translation>Database “%1” has no tables. Create them first.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML923">
        <source>Pro databázi „%1“ není na disku místo. Uvolněte je a zkuste to znovu.</source>
        <translation>The disk of database “%1” is full. Free some space and try again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML923|Pro databázi „%1“ není na disku serveru místo. Obraťte se na správce.">
        <source>Pro databázi „%1“ není na disku serveru místo. Obraťte se na správce.</source>
        <translation>The server’s disk is full for database “%1”. Contact your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML924">
        <source>V databázi „%1“ k tomu nemáte oprávnění. Požádejte o ně správce.</source>
        <translation>You lack the right to do this in database “%1”. Ask your administrator for it.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML925">
        <source>V databázi „%1“ už není něco, na co se změna odvolává. Načtěte data znovu.</source>
        <translation>Something that the change refers to is not in database “%1” any more. Load the data again.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML930">
        <source>Databáze „%1“ nemohla příkaz provést. Obraťte se na správce.</source>
        <translation>Database “%1” could not do this. Contact your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML930|České řazení není v systému k dispozici. Obraťte se na správce.">
        <source>České řazení není v systému k dispozici. Obraťte se na správce.</source>
        <translation>Czech collation is not available on this system. Contact your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML930|Databázi nelze připravit pro výpočty s desetinnými čísly. Obraťte se na správce.">
        <source>Databázi nelze připravit pro výpočty s desetinnými čísly. Obraťte se na správce.</source>
        <translation>The database cannot be prepared for computing with decimals. Contact your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML926">
        <source>Tabulka „%1“ má navíc sloupec „%2“, který by převod ztratil. Přesuňte jej do vlastní tabulky.</source>
        <translation>Table “%1” has an additional column “%2”, which the upgrade would lose. Move it to a table of your own.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML927">
        <source>Údaje v tabulce „%1“ neodpovídají pravidlům nové verze. Opravte je a převod zopakujte.</source>
        <translation>Data of table “%1” break the rules of the new version. Correct them and repeat the upgrade.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML927|Údaje v tabulce „%1“ se odvolávají na něco, co v databázi není. Opravte je a převod zopakujte.">
        <source>Údaje v tabulce „%1“ se odvolávají na něco, co v databázi není. Opravte je a převod zopakujte.</source>
        <translation>Data of table “%1” refer to something that the database lacks. Correct them and repeat the upgrade.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML928">
        <source>Vaši úpravu „%1“ nelze v nové verzi ponechat. Upravte ji, nebo ji odstraňte, a převod zopakujte.</source>
        <translation>Your own “%1” cannot be kept in the new version. Adapt it or remove it, and repeat the upgrade.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML929">
        <source>V databázi „%1“ závisí na pohledech nebo funkcích něco vlastního. Odstraňte to a převod zopakujte.</source>
        <translation>In database “%1” something of your own depends on our views or functions. Remove it and repeat the upgrade.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML931">
        <source>Procedury databáze „%1“ jsou na serveru. Nahraďte je tam; přepínač --procedures je jen pro SQLite.</source>
        <translation>The procedures of database “%1” are on the server. Replace them there; the option --procedures is for SQLite only.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML932">
        <source>Skript procedury „%1“ má chybu. Obraťte se na správce.</source>
        <translation>The script of procedure “%1” has a mistake. Ask your administrator.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML932|Skript „%1“ nenahrazuje žádnou proceduru. Pojmenujte jej po proceduře.">
        <source>Skript „%1“ nenahrazuje žádnou proceduru. Pojmenujte jej po proceduře.</source>
        <translation>The script “%1” replaces no procedure. Name it after one.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML932|Složku procedur „%1“ nelze číst. Zkontrolujte její umístění a oprávnění.">
        <source>Složku procedur „%1“ nelze číst. Zkontrolujte její umístění a oprávnění.</source>
        <translation>The folder of procedures “%1” cannot be read. Check its location and permissions.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML933">
        <source>Databáze „%1“ má kódování …, ale potřebuje UTF8. Založte ji znovu s tímto kódováním.</source>
        <translation>The encoding of database “%1” is not UTF8. Create the database again with that encoding.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML934">
        <source>Kopii databáze „%1“ nelze založit. Zkontrolujte místo na disku a oprávnění ke složce.</source>
        <translation>The copy of the database “%1” cannot be made. Check the space on the disk and the permissions of the folder.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML935">
        <source>Soubor pro záznam volání „%1“ nelze otevřít k zápisu. Zkontrolujte oprávnění ke složce.</source>
        <translation>The file “%1” for the trace of the calls cannot be opened for writing. Check the permissions of the folder.</translation>
    </message>
    <message id="MELVARKHOST\REFUSAL\ML936">
        <source>Hlášení o chybě nelze zapsat do složky „%1“. Zkontrolujte místo na disku a oprávnění ke složce.</source>
        <translation>The report on the problem cannot be written to the folder “%1”. Check the space on the disk and the permissions of the folder.</translation>
    </message>
</context>
</TS>
