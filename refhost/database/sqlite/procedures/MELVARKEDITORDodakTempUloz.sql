-- Takes the rows of this session over into a delivery note: those with a quantity become its last lines, in their order.
-- A line of an order line adds to what is delivered on it, and one that has all it ordered is complete. The sources are
-- recorded. Without such rows nothing changes.
--
-- a_DODKID_ZDROJ, a_DDOBID_ZDROJ: the note or order that the rows were taken from, null for none.
--
-- Refusals: ML040, ML041 no save is under way; ML010, ML011 the note is gone or closed; ML027 it is its own source;
-- ML055 a source is gone; ML053 a VAT rate is not valid on the note's day; ML049, ML054 an order line is gone or was
-- complete before.
--
-- in: a_DODKID integer
-- in: a_DODKID_ZDROJ integer
-- in: a_DDOBID_ZDROJ integer
-- after failure: staging refused

select refuse_closed_staging() as refusal;

-- A save that was given up, or has come before, is over.
select refuse('ML041') as refusal
where exists (select 1 from ULOZENI u join SAVE_IDENTITY s on s.IDENTITA = u.IDENTITA);

insert into ULOZENI (IDENTITA, UZIVATEL, DRUH, DOKLAD)
select IDENTITA, current_user_name(), 'DODAK', coalesce(:a_DODKID, 0) from SAVE_IDENTITY where IDENTITA is not null;

-- include: note-save

select refuse_closed_note(:a_DODKID) as refusal;
select refuse_own_note(:a_DODKID, :a_DODKID_ZDROJ) as refusal;

select refuse_unknown_source(:a_DODKID_ZDROJ, :a_DDOBID_ZDROJ) as refusal;

select refuse_line(l.PLACE, 'ML053', r.NAZEV, date_text(d.DATUM)) as refusal
from NOTE_LINE l
join DPH r on r.ID = l.DPHID
join DODAK d on d.ID = :a_DODKID
where d.DATUM < r.PLATIOD or d.DATUM > r.PLATIDO
order by l.PLACE;

select refuse_line(PLACE, 'ML049', DOBSID) as refusal
from NOTE_LINE
where DOBSID is not null and DOBSID not in (select ID from DODOBJPOL)
order by PLACE;

select refuse_line(l.PLACE, 'ML054', i.NAZEV, o.CISLO) as refusal
from NOTE_LINE l
join DODOBJPOL p on p.ID = l.DOBSID and p.KOMPLETNI = 1
join DODOBJEDNAVKA o on o.ID = p.DDOBID
join SKLADPOL i on i.ID = p.SKLPID
order by l.PLACE;

insert into DODAKPOL (DODKID, PORADI, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA,
                      JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY,
                      JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU,
                      CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU,
                      CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY, TRVANLIVOST, DOBSID)
select d.ID,
       (select coalesce(max(PORADI), 0) from DODAKPOL where DODKID = :a_DODKID) + row_number() over (order by l.PLACE),
       l.SKLPID, coalesce(l.SKLDID, d.SKLDID), l.DPHID, l.MNOZSTVI, l.SLEVA,
       l.JEDNCENABBEZSLEVY, l.JEDNDPHABEZSLEVY, l.JEDNDPHBBEZSLEVY, l.JEDNCENASBEZSLEVY,
       l.JEDNCENABSESLEVOU, l.JEDNDPHASESLEVOU, l.JEDNDPHBSESLEVOU, l.JEDNCENASSESLEVOU,
       l.CENABSESLEVOU, l.DPHASESLEVOU, l.DPHBSESLEVOU, l.CENASSESLEVOU,
       l.CENABBEZSLEVY, l.DPHABEZSLEVY, l.DPHBBEZSLEVY, l.CENASBEZSLEVY, l.TRVANLIVOST, l.DOBSID
from NOTE_LINE l
join DODAK d on d.ID = :a_DODKID
order by l.PLACE;

-- An order of a negative quantity is one to take goods back: it is complete when that much went back.
update DODOBJPOL as p
set DODANO = dec_add(p.DODANO, s.MNOZSTVI),
    KOMPLETNI = iif(dec_cmp(dec_add(p.DODANO, s.MNOZSTVI), in_main_unit(p.MNOZSTVI, j.FAKTOR)) * dec_cmp(p.MNOZSTVI, 0)
                    >= 0, 1, p.KOMPLETNI)
from (select DOBSID, dec_sum(MNOZSTVI) as MNOZSTVI from NOTE_LINE group by DOBSID) s, SKPL j
where p.ID = s.DOBSID and j.ID = p.SKPLID;

insert into DODAKZDROJ (DODKID, DODKIDZDROJ, DDOBIDZDROJ)
select :a_DODKID, s.DODKID, s.DDOBID
from (select :a_DODKID_ZDROJ as DODKID, null as DDOBID union all select null, :a_DDOBID_ZDROJ) s
where coalesce(s.DODKID, s.DDOBID) > 0 and exists (select 1 from NOTE_LINE)
on conflict do nothing;

-- The save is over for all that the session had checked, of either kind of document.
delete from NOTE_STAGED;

delete from ORDER_STAGED;
