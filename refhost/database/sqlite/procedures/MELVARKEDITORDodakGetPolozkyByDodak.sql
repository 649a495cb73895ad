-- The rows with which the editor of a delivery note opens: the lines of another note in their order, or, without a source,
-- the template: each item once, from the latest three other notes of the same supplier, newest first, as its latest line
-- has it. Without quantities the quantity and the totals are empty; without prices those of the supplier's list on the
-- note's day count, with the item's VAT rate.
--
-- a_DODKIDMASTER is the source, null for the template; a_DODKID the note that is edited.
--
-- Refusals: ML010 the note does not exist, ML021 the source does not exist, ML027 it is the note itself.
--
-- in: a_DODKIDMASTER integer
-- in: a_DODKID integer
-- in: a_PRENESMNOZSTVI boolean
-- in: a_PRENESCENY boolean

select refuse_unknown_note(:a_DODKID) as refusal;
select refuse_own_note(:a_DODKID, :a_DODKIDMASTER) as refusal;

select refuse('ML021', 'Dodací list', :a_DODKIDMASTER) as refusal
where :a_DODKIDMASTER > 0 and not exists (select 1 from DODAK where ID = :a_DODKIDMASTER);

insert into NOTE_FILL (SKLPID, SKLDID, DPHID, MNOZSTVI, SOURCEID, SLEVA)
with LATEST as (
    select other.ID, other.DATUM
    from DODAK other
    join DODAK note on note.ID = :a_DODKID and note.DODVID = other.DODVID and note.ID <> other.ID
    where coalesce(:a_DODKIDMASTER, 0) <= 0
    order by other.DATUM desc, other.ID desc
    limit 3
),
TEMPLATE as (
    select p.ID,
           row_number() over (partition by p.SKLPID order by l.DATUM desc, l.ID desc, p.PORADI desc) as AGE,
           row_number() over (order by l.DATUM desc, l.ID desc, p.PORADI) as PLACE
    from LATEST l
    join DODAKPOL p on p.DODKID = l.ID
),
SOURCE as (
    select ID, PORADI as PLACE from DODAKPOL where DODKID = :a_DODKIDMASTER
    union all
    select ID, PLACE from TEMPLATE where AGE = 1
)
select p.SKLPID, p.SKLDID, p.DPHID, iif(:a_PRENESMNOZSTVI, p.MNOZSTVI, null), p.ID, p.SLEVA
from SOURCE s
join DODAKPOL p on p.ID = s.ID
order by s.PLACE;

update NOTE_FILL
set SOURCEID = null, CENA = null, SLEVA = null,
    DPHID = (select i.DPHID from SKLADPOL i where i.ID = NOTE_FILL.SKLPID)
where not coalesce(:a_PRENESCENY, 0);

update NOTE_FILL
set (CENA, SLEVA) = (select c.CENA, c.SLEVA
                     from DODAK d
                     join PRICE_V c on c.DODVID = d.DODVID and d.DATUM between c.FIRSTDAY and c.LASTDAY
                     where d.ID = :a_DODKID and c.SKLPID = NOTE_FILL.SKLPID)
where SOURCEID is null;

-- include: note-fill
