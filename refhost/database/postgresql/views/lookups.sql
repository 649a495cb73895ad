-- What the host's lookup lists and the editors' pick lists read. A column whose name begins with "_" is not shown; the
-- conditions of the lookups name them.

create view SKLAD_V as
select NAZEV from SKLAD;

create view DODAVATEL_V as
select JMENO from DODAVATEL;

create view DODAK_NORMAL_V as
select d.CISLO, date_text(d.DATUM) as DATUM, v.JMENO as DODAVATEL, s.NAZEV as SKLAD,
       d.ID as _ID, d.SKLDID as _SKLDID, d.DODVID as _DODVID
from DODAK d
join DODAVATEL v on v.ID = d.DODVID
join SKLAD s on s.ID = d.SKLDID;

-- _DODANO: 1 when the order has lines and nothing more is expected on any of them.
create view DODOBJEDNAVKA_NORMAL_V as
select o.CISLO, moment_text(o.OBJEDNANIDC) as OBJEDNANIDC, v.JMENO as DODAVATEL, s.NAZEV as SKLAD,
       o.ID as _ID, o.SKLDID as _SKLDID, o.DODVID as _DODVID,
       coalesce((select min(p.KOMPLETNI) from DODOBJPOL p where p.DDOBID = o.ID), 0) as _DODANO
from DODOBJEDNAVKA o
left join DODAVATEL v on v.ID = o.DODVID
join SKLAD s on s.ID = o.SKLDID
where o.VZOR = 0;

create view DODOBJEDNAVKAVZOR_NORMAL_V as
select o.CISLO, o.NAZEV, v.JMENO as DODAVATEL, s.NAZEV as SKLAD,
       o.ID as _ID, o.SKLDID as _SKLDID, o.DODVID as _DODVID
from DODOBJEDNAVKA o
left join DODAVATEL v on v.ID = o.DODVID
join SKLAD s on s.ID = o.SKLDID
where o.VZOR = 1;

create view DODAVATEL_NORMAL_V as
select JMENO, MESTO, ID as _ID from DODAVATEL;

create view SKUPSPOL_SKUPSPOL1_V as
select NAZEV, ID as _ID from SKUPSPOL1;

create view SKUPSPOL_SKUPSPOL2_V as
select g.NAZEV, u.NAZEV as SKUPSPOL1, g.ID as _ID
from SKUPSPOL2 g
join SKUPSPOL1 u on u.ID = g.SSP1ID;

create view SKUPSPOL_SKUPSPOL3_V as
select g.NAZEV, m.NAZEV as SKUPSPOL2, u.NAZEV as SKUPSPOL1, g.ID as _ID
from SKUPSPOL3 g
join SKUPSPOL2 m on m.ID = g.SSP2ID
join SKUPSPOL1 u on u.ID = m.SSP1ID;
