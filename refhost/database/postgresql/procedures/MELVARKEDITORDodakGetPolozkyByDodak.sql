-- The rows with which the editor of a delivery note opens: the lines of another note in their order, or, without a source,
-- the template: each item once, from the latest three other notes of the same supplier, newest first, as its latest line
-- has it. Without quantities the quantity and the totals are empty; without prices those of the supplier's list on the
-- note's day count, with the item's VAT rate.
--
-- a_DODKIDMASTER is the source, null for the template; a_DODKID the note that is edited.
--
-- Refusals: ML010 the note does not exist, ML021 the source does not exist, ML027 it is the note itself.
--
-- Planned at each call, for a plan that is kept fits sources of usual length only.

create function MELVARKEDITORDodakGetPolozkyByDodak(
    a_DODKIDMASTER integer default null,
    a_DODKID integer default null,
    a_PRENESMNOZSTVI boolean default null,
    a_PRENESCENY boolean default null)
returns setof note_row
language plpgsql stable set plan_cache_mode = force_custom_plan as $$
begin
    perform refuse_unknown_note(a_DODKID);
    perform refuse_own_note(a_DODKID, a_DODKIDMASTER);

    perform refuse('ML021', 'Dodací list', a_DODKIDMASTER::text)
    where a_DODKIDMASTER > 0 and not exists (select from DODAK where ID = a_DODKIDMASTER);

    return query
    with LATEST as (
        select other.ID, other.DATUM
        from DODAK other
        join DODAK note on note.ID = a_DODKID and note.DODVID = other.DODVID and note.ID <> other.ID
        where coalesce(a_DODKIDMASTER, 0) <= 0
        order by other.DATUM desc, other.ID desc
        limit 3
    ),
    TEMPLATE as (
        select p as LINE,
               row_number() over (partition by p.SKLPID order by l.DATUM desc, l.ID desc, p.PORADI desc) as AGE,
               row_number() over (order by l.DATUM desc, l.ID desc, p.PORADI) as PLACE
        from LATEST l
        join DODAKPOL p on p.DODKID = l.ID
    ),
    SOURCE as (
        select p.*, p.PORADI as PLACE from DODAKPOL p where p.DODKID = a_DODKIDMASTER
        union all
        select (t.LINE).*, t.PLACE from TEMPLATE t where t.AGE = 1
    )
    select r.*
    from note_rows(a_DODKID, array(
        select row(null, p.SKLPID, p.SKLDID, case when a_PRENESCENY then p.DPHID else i.DPHID end,
                   case when a_PRENESMNOZSTVI then p.MNOZSTVI end, case when a_PRENESCENY then p.ID end, c.CENA,
                   case when a_PRENESCENY then p.SLEVA else c.SLEVA end)::note_fill
        from SOURCE p
        join SKLADPOL i on i.ID = p.SKLPID
        join DODAK d on d.ID = a_DODKID
        left join PRICE_V c
            on a_PRENESCENY is not true and c.DODVID = d.DODVID and c.SKLPID = p.SKLPID
           and d.DATUM between c.FIRSTDAY and c.LASTDAY
        order by p.PLACE)) r;
end
$$;
