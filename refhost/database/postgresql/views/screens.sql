-- What the host's three document screens show: the documents, and the lines of one. A column whose name begins with "_"
-- is not shown. Numbers, dates and moments are texts for people.

create view SCREEN_DODAK_V as
select d.ID as _ID, d.CISLO, date_text(d.DATUM) as DATUM, v.JMENO as DODAVATEL, s.NAZEV as SKLAD,
       case d.OTEVRENO when 1 then 'otevřený' else 'uzavřený' end as STAV,
       (select count(*) from DODAKPOL p where p.DODKID = d.ID) as POCETPOLOZEK,
       total_text(coalesce((select sum(p.CENASSESLEVOU) from DODAKPOL p where p.DODKID = d.ID), 0)) as CENACELKEM,
       d.DODVID as _DODVID, d.SKLDID as _SKLDID, d.OTEVRENO as _OTEVRENO
from DODAK d
join DODAVATEL v on v.ID = d.DODVID
join SKLAD s on s.ID = d.SKLDID;

create view SCREEN_DODOBJ_V as
select o.ID as _ID, o.CISLO, moment_text(o.OBJEDNANIDC) as OBJEDNANIDC, v.JMENO as DODAVATEL, s.NAZEV as SKLAD,
       case o.OTEVRENO when 1 then 'otevřený' else 'uzavřený' end as STAV,
       (select count(*) from DODOBJPOL p where p.DDOBID = o.ID) as POCETPOLOZEK,
       o.DODVID as _DODVID, o.SKLDID as _SKLDID, o.OTEVRENO as _OTEVRENO
from DODOBJEDNAVKA o
left join DODAVATEL v on v.ID = o.DODVID
join SKLAD s on s.ID = o.SKLDID
where o.VZOR = 0;

create view SCREEN_DODOBJVZOR_V as
select o.ID as _ID, o.CISLO, o.NAZEV, v.JMENO as DODAVATEL, s.NAZEV as SKLAD,
       case o.OTEVRENO when 1 then 'otevřený' else 'uzavřený' end as STAV,
       (select count(*) from DODOBJPOL p where p.DDOBID = o.ID) as POCETPOLOZEK,
       o.DODVID as _DODVID, o.SKLDID as _SKLDID, o.OTEVRENO as _OTEVRENO
from DODOBJEDNAVKA o
left join DODAVATEL v on v.ID = o.DODVID
join SKLAD s on s.ID = o.SKLDID
where o.VZOR = 1;

create view SCREEN_DODAK_LINES_V as
select p.ID as _ID, p.DODKID as _DOCID, p.PORADI, i.NAZEV as SKLADPOL, s.NAZEV as SKLAD,
       number_text(p.MNOZSTVI) as MNOZSTVI, j.NAZEV as JEDNOTKY, r.NAZEV as DPH, number_text(p.SLEVA) as SLEVA,
       number_text(p.JEDNCENABSESLEVOU) as JEDNCENABSESLEVOU, number_text(p.JEDNDPHASESLEVOU) as JEDNDPHASESLEVOU,
       number_text(p.JEDNDPHBSESLEVOU) as JEDNDPHBSESLEVOU, number_text(p.JEDNCENASSESLEVOU) as JEDNCENASSESLEVOU,
       number_text(p.JEDNCENABBEZSLEVY) as JEDNCENABBEZSLEVY, number_text(p.JEDNDPHABEZSLEVY) as JEDNDPHABEZSLEVY,
       number_text(p.JEDNDPHBBEZSLEVY) as JEDNDPHBBEZSLEVY, number_text(p.JEDNCENASBEZSLEVY) as JEDNCENASBEZSLEVY,
       total_text(p.CENABSESLEVOU) as CENABSESLEVOU, total_text(p.DPHASESLEVOU) as DPHASESLEVOU,
       total_text(p.DPHBSESLEVOU) as DPHBSESLEVOU, total_text(p.CENASSESLEVOU) as CENASSESLEVOU,
       total_text(p.CENABBEZSLEVY) as CENABBEZSLEVY, total_text(p.DPHABEZSLEVY) as DPHABEZSLEVY,
       total_text(p.DPHBBEZSLEVY) as DPHBBEZSLEVY, total_text(p.CENASBEZSLEVY) as CENASBEZSLEVY,
       date_text(p.TRVANLIVOST) as TRVANLIVOST, p.DOBSID
from DODAKPOL p
join SKLADPOL i on i.ID = p.SKLPID
join SKLAD s on s.ID = p.SKLDID
left join SKPL j on j.SKLPID = p.SKLPID and j.PORADI = 0
left join DPH r on r.ID = p.DPHID;

-- The lines of orders and of templates: the two screens differ only in the kind of document.
create view ORDER_LINES_V as
select p.ID as _ID, p.DDOBID as _DOCID, p.PORADI, i.NAZEV as SKLADPOL, s.NAZEV as SKLAD,
       number_text(p.MNOZSTVI) as MNOZSTVI, j.NAZEV as JEDNOTKY, number_text(p.DODANO) as DODANO, v.JMENO as DODAVATEL,
       p.POPIS, p.KOMENTAR, o.VZOR as _VZOR
from DODOBJPOL p
join DODOBJEDNAVKA o on o.ID = p.DDOBID
join SKLADPOL i on i.ID = p.SKLPID
join SKLAD s on s.ID = p.SKLDID
join SKPL j on j.ID = p.SKPLID
left join DODAVATEL v on v.ID = coalesce(p.DODVID, o.DODVID);

create view SCREEN_DODOBJ_LINES_V as
select _ID, _DOCID, PORADI, SKLADPOL, SKLAD, MNOZSTVI, JEDNOTKY, DODANO, DODAVATEL, POPIS, KOMENTAR
from ORDER_LINES_V
where _VZOR = 0;

create view SCREEN_DODOBJVZOR_LINES_V as
select _ID, _DOCID, PORADI, SKLADPOL, SKLAD, MNOZSTVI, JEDNOTKY, DODANO, DODAVATEL, POPIS, KOMENTAR
from ORDER_LINES_V
where _VZOR = 1;

-- The orders that this session's saves have made beside the one that was saved, for the screen to name them.
create view SCREEN_DODOBJ_CREATED_V as
select c.ID::integer as _ID
from unnest(string_to_array(nullif(current_setting('melvark.created_orders', true), ''), ',')) c (ID);
