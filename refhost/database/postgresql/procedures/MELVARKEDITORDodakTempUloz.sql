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
declare
    last_line integer;
begin
    perform refuse_closed_staging();
    perform note_save('DODAK', a_DODKID);

    -- Saves of the same note, and of notes from the same order lines, follow one another. Always in this order, so that no
    -- two of them wait for each other.
    perform from DODAK d where d.ID = a_DODKID for no key update;
    perform from DODOBJPOL p
    where p.ID in (select s.DOBSID from pg_temp.NOTE_STAGED s)
    order by p.ID for no key update;

    perform refuse_closed_note(a_DODKID);
    perform refuse_own_note(a_DODKID, a_DODKID_ZDROJ);
    perform refuse_unknown_source(a_DODKID_ZDROJ, a_DDOBID_ZDROJ);

    perform refuse_line(s.PLACE, 'ML053', r.NAZEV, date_text(d.DATUM))
    from pg_temp.NOTE_STAGED s
    join DPH r on r.ID = s.DPHID
    join DODAK d on d.ID = a_DODKID
    where d.DATUM < r.PLATIOD or d.DATUM > r.PLATIDO
    order by s.PLACE;

    perform refuse_line(s.PLACE, 'ML049', s.DOBSID::text)
    from pg_temp.NOTE_STAGED s
    where s.DOBSID is not null and not exists (select from DODOBJPOL p where p.ID = s.DOBSID)
    order by s.PLACE;

    perform refuse_line(s.PLACE, 'ML054', i.NAZEV, o.CISLO)
    from pg_temp.NOTE_STAGED s
    join DODOBJPOL p on p.ID = s.DOBSID and p.KOMPLETNI = 1
    join DODOBJEDNAVKA o on o.ID = p.DDOBID
    join SKLADPOL i on i.ID = p.SKLPID
    order by s.PLACE;

    select coalesce(max(p.PORADI), 0) into last_line from DODAKPOL p where p.DODKID = a_DODKID;

    insert into DODAKPOL (DODKID, PORADI, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA,
                          JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY,
                          JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU,
                          CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU,
                          CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY, TRVANLIVOST, DOBSID)
    select d.ID, last_line + row_number() over (order by s.PLACE),
           s.SKLPID, coalesce(s.SKLDID, d.SKLDID), s.DPHID, s.NUMBERS[1], s.NUMBERS[2],
           s.NUMBERS[7], s.NUMBERS[8], s.NUMBERS[9], s.NUMBERS[10],
           s.NUMBERS[3], s.NUMBERS[4], s.NUMBERS[5], s.NUMBERS[6],
           s.NUMBERS[11], s.NUMBERS[12], s.NUMBERS[13], s.NUMBERS[14],
           s.NUMBERS[15], s.NUMBERS[16], s.NUMBERS[17], s.NUMBERS[18], s.TRVANLIVOST, s.DOBSID
    from pg_temp.NOTE_STAGED s
    join DODAK d on d.ID = a_DODKID
    order by s.PLACE;

    -- An order of a negative quantity is one to take goods back: it is complete when that much went back.
    update DODOBJPOL p
    set DODANO = p.DODANO + s.MNOZSTVI,
        KOMPLETNI = case
            when sign(p.DODANO + s.MNOZSTVI - in_main_unit(p.MNOZSTVI, j.FAKTOR)) * sign(p.MNOZSTVI) >= 0 then 1
            else p.KOMPLETNI
        end
    from (select DOBSID, sum(NUMBERS[1]) as MNOZSTVI from pg_temp.NOTE_STAGED group by DOBSID) s, SKPL j
    where p.ID = s.DOBSID and j.ID = p.SKPLID;

    insert into DODAKZDROJ (DODKID, DODKIDZDROJ, DDOBIDZDROJ)
    select a_DODKID, s.DODKID, s.DDOBID
    from (values (a_DODKID_ZDROJ, null), (null, a_DDOBID_ZDROJ)) s (DODKID, DDOBID)
    where coalesce(s.DODKID, s.DDOBID) > 0 and exists (select from pg_temp.NOTE_STAGED)
    on conflict do nothing;

    -- The save is over for all that the session had checked, of either kind of document.
    truncate pg_temp.NOTE_STAGED, pg_temp.ORDER_STAGED;
end
$$;
