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
-- after failure: staging refused

create function MELVARKEDITORDodakTempUloz(
    a_DODKID integer default null,
    a_DODKID_ZDROJ integer default null,
    a_DDOBID_ZDROJ integer default null)
returns void
language plpgsql as $$
begin
    perform refuse_closed_staging();

    -- Saves of the same note, and of notes from the same order lines, follow one another. Always in this order, so that no
    -- two of them wait for each other.
    perform from DODAK d where d.ID = a_DODKID for no key update;
    perform from DODOBJPOL p
    where p.ID in (select (s.LINE).DOBSID from pg_temp.NOTE_STAGED s)
    order by p.ID for no key update;

    perform refuse_closed_note(a_DODKID);
    perform refuse_own_note(a_DODKID, a_DODKID_ZDROJ);
    perform refuse_unknown_source(a_DODKID_ZDROJ, a_DDOBID_ZDROJ);

    perform refuse('ML053', r.NAZEV, date_text(d.DATUM))
    from pg_temp.NOTE_STAGED s
    join DPH r on r.ID = (s.LINE).DPHID
    join DODAK d on d.ID = a_DODKID
    where d.DATUM < r.PLATIOD or d.DATUM > r.PLATIDO
    order by s.PLACE;

    perform refuse('ML049', (s.LINE).DOBSID::text)
    from pg_temp.NOTE_STAGED s
    where (s.LINE).DOBSID is not null and not exists (select from DODOBJPOL p where p.ID = (s.LINE).DOBSID)
    order by s.PLACE;

    perform refuse('ML054', i.NAZEV, o.CISLO)
    from pg_temp.NOTE_STAGED s
    join DODOBJPOL p on p.ID = (s.LINE).DOBSID and p.KOMPLETNI = 1
    join DODOBJEDNAVKA o on o.ID = p.DDOBID
    join SKLADPOL i on i.ID = p.SKLPID
    order by s.PLACE;

    insert into DODAKPOL (DODKID, PORADI, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA,
                          JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY,
                          JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU,
                          CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU,
                          CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY, TRVANLIVOST, DOBSID)
    select d.ID,
           (select coalesce(max(PORADI), 0) from DODAKPOL where DODKID = d.ID) + row_number() over (order by s.PLACE),
           l.SKLPID, coalesce(l.SKLDID, d.SKLDID), l.DPHID, l.MNOZSTVI, l.SLEVA,
           l.JEDNCENABBEZSLEVY, l.JEDNDPHABEZSLEVY, l.JEDNDPHBBEZSLEVY, l.JEDNCENASBEZSLEVY,
           l.JEDNCENABSESLEVOU, l.JEDNDPHASESLEVOU, l.JEDNDPHBSESLEVOU, l.JEDNCENASSESLEVOU,
           l.CENABSESLEVOU, l.DPHASESLEVOU, l.DPHBSESLEVOU, l.CENASSESLEVOU,
           l.CENABBEZSLEVY, l.DPHABEZSLEVY, l.DPHBBEZSLEVY, l.CENASBEZSLEVY, l.TRVANLIVOST, l.DOBSID
    from pg_temp.NOTE_STAGED s
    cross join lateral (select (s.LINE).*) l
    join DODAK d on d.ID = a_DODKID
    order by s.PLACE;

    update DODOBJPOL p
    set DODANO = p.DODANO + s.MNOZSTVI
    from (select (LINE).DOBSID, sum((LINE).MNOZSTVI) as MNOZSTVI from pg_temp.NOTE_STAGED group by (LINE).DOBSID) s
    where p.ID = s.DOBSID;

    -- An order of a negative quantity is one to take goods back: it is complete when that much went back.
    update DODOBJPOL p
    set KOMPLETNI = 1
    where p.ID in (select (LINE).DOBSID from pg_temp.NOTE_STAGED)
      and sign(p.DODANO - ordered_in_main_unit(p.ID)) * sign(p.MNOZSTVI) >= 0;

    insert into DODAKZDROJ (DODKID, DODKIDZDROJ, DDOBIDZDROJ)
    select a_DODKID, s.DODKID, s.DDOBID
    from (values (a_DODKID_ZDROJ, null), (null, a_DDOBID_ZDROJ)) s (DODKID, DDOBID)
    where coalesce(s.DODKID, s.DDOBID) > 0 and exists (select from pg_temp.NOTE_STAGED)
    on conflict do nothing;

    -- The save is over for all that the session had checked, of either kind of document.
    delete from pg_temp.NOTE_STAGED;
    delete from pg_temp.ORDER_STAGED;
end
$$;
