-- What the editor calls when a delivery note is filled from the template. A line "-- procedure" names it and the
-- parameters that it declares; each statement below it that brings rows is one result set.

-- procedure MELVARKEDITORDodakInit
select 'clerk' as UZIVATEL, 0 as DPHBLIC;
select '21 %' as NAZEV;
select name as NAZEV from warehouse order by name;

-- procedure MELVARKEDITORDodakCheckMaster a_DODKID

-- procedure MELVARKEDITORDodakGetPolozkyByDodak a_DODKIDMASTER a_DODKID a_PRENESMNOZSTVI a_PRENESCENY
select name as SKLADPOL, 'Main' as SKLAD, price as JEDNCENABSESLEVOU, null as MNOZSTVI, null as CENABSESLEVOU,
    null as DOBSID, null as SKUPSPOL1, null as SKUPSPOL2, null as SKUPSPOL3, '21 %' as DPH, null as SLEVA,
    null as JEDNDPHASESLEVOU, null as JEDNDPHBSESLEVOU, null as JEDNCENASSESLEVOU, null as JEDNCENABBEZSLEVY,
    null as JEDNDPHABEZSLEVY, null as JEDNDPHBBEZSLEVY, null as JEDNCENASBEZSLEVY, null as DPHASESLEVOU,
    null as DPHBSESLEVOU, null as CENASSESLEVOU, null as CENABBEZSLEVY, null as DPHABEZSLEVY, null as DPHBBEZSLEVY,
    null as CENASBEZSLEVY, null as TRVANLIVOST
from item order by name;

-- A cell's number comes as the clerk typed it, with a point or a comma.
-- procedure MELVARKEDITORDodakVypocetCen a_ZMENENEBUNKY a_PREPOCETCEN a_FOCUS a_MNOZSTVI a_DPH a_SLEVA a_JEDNCENABSESLEVOU a_JEDNDPHASESLEVOU a_JEDNDPHBSESLEVOU a_JEDNCENASSESLEVOU a_JEDNCENABBEZSLEVY a_JEDNDPHABEZSLEVY a_JEDNDPHBBEZSLEVY a_JEDNCENASBEZSLEVY a_CENABSESLEVOU a_DPHASESLEVOU a_DPHBSESLEVOU a_CENASSESLEVOU a_CENABBEZSLEVY a_DPHABEZSLEVY a_DPHBBEZSLEVY a_CENASBEZSLEVY
select replace(:a_MNOZSTVI, ',', '.') * replace(:a_JEDNCENABSESLEVOU, ',', '.') as CENABSESLEVOU;

-- procedure MELVARKEDITORResetTemp
delete from arriving;

-- Lines of which nothing was delivered do not arrive.
-- procedure MELVARKEDITORDodakInsertToTemp a_DOBSID a_SKLADPOL a_SKLAD a_MNOZSTVI a_DPH a_SLEVA a_JEDNCENABSL a_JEDNDPHASL a_JEDNDPHBSL a_JEDNCENASSL a_JEDNCENAB a_JEDNDPHA a_JEDNDPHB a_JEDNCENAS a_CENABSL a_DPHASL a_DPHBSL a_CENASSL a_CENAB a_DPHA a_DPHB a_CENAS a_TRVANLIVOST
insert into arriving
    select :a_SKLADPOL, replace(:a_MNOZSTVI, ',', '.') + 0, replace(:a_JEDNCENABSL, ',', '.') + 0 where :a_MNOZSTVI <> '';

-- procedure MELVARKEDITORDodakTempUloz a_DODKID a_DODKID_ZDROJ a_DDOBID_ZDROJ
insert into note_line select :a_DODKID, item, quantity, price from arriving where quantity <> 0;
delete from arriving;

-- This company keeps no layouts and no places of windows.
-- procedure MELVARKEDITORNASTAVENIGetList a_TYPEDITACE
select null as NAZEV, null as ID where false;
-- procedure MELVARKEDITORNASTAVENINactiDef a_TYPEDITACE
select null as ID, null as DATA where false;
-- procedure MELVARKEDITORNASTAVENINactiNastaveniOkna a_TYPEDITACE
select null as DATA where false;
-- procedure MELVARKEDITORNASTAVENIUlozNastaveniOkna a_TYPEDITACE a_DATA
