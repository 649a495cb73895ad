-- Checks one row of an order or template and keeps it for the closing call. Texts come as they stand in the editor's
-- cells; a row without any is ignored. An empty warehouse or supplier is the document's own.
--
-- Refusals: ML040, ML041 no save is under way; ML042, ML043 item; ML044 warehouse; ML045 supplier; ML001, ML005, ML006
-- quantities; ML048 a quantity without a unit, ML047 a unit that is not the item's.
--
-- in: a_SKLADPOL
-- in: a_SKLAD
-- in: a_DODAVATEL
-- in: a_SKPLID
-- in: a_MNOZSTVI
-- in: a_JEDNOTKY
-- in: a_SKPLIDV1
-- in: a_MNOZSTVIV1
-- in: a_JEDNOTKYV1
-- in: a_SKPLIDV2
-- in: a_MNOZSTVIV2
-- in: a_JEDNOTKYV2
-- in: a_POPIS
-- in: a_KOMENTAR
-- answer: may come later
-- after failure: staging refused

select refuse_closed_staging() as refusal;

delete from ORDER_SENT;
delete from ORDER_SENT_QUANTITY;

insert into ORDER_SENT_QUANTITY (SLOT, LABEL, MNOZSTVI, SKPLID, JEDNOTKY)
values (0, 'Množství', typed(:a_MNOZSTVI), typed_id(:a_SKPLID), typed(:a_JEDNOTKY)),
       (1, 'Množství ve vedlejší jednotce 1', typed(:a_MNOZSTVIV1), typed_id(:a_SKPLIDV1), typed(:a_JEDNOTKYV1)),
       (2, 'Množství ve vedlejší jednotce 2', typed(:a_MNOZSTVIV2), typed_id(:a_SKPLIDV2), typed(:a_JEDNOTKYV2));

insert into ORDER_SENT (SKLADPOL, SKLAD, DODAVATEL, POPIS, KOMENTAR)
select typed(:a_SKLADPOL), typed(:a_SKLAD), typed(:a_DODAVATEL), typed(:a_POPIS), typed(:a_KOMENTAR)
where coalesce(typed(:a_SKLADPOL), typed(:a_SKLAD), typed(:a_DODAVATEL), typed(:a_POPIS), typed(:a_KOMENTAR)) is not null
   or exists (select 1 from ORDER_SENT_QUANTITY where coalesce(MNOZSTVI, SKPLID, JEDNOTKY) is not null);

select refuse_unknown_item(SKLADPOL) as refusal from ORDER_SENT;

select refuse_unknown_warehouse(SKLAD) as refusal from ORDER_SENT;

select refuse('ML045', DODAVATEL) as refusal
from ORDER_SENT
where DODAVATEL is not null
  and not exists (select 1 from DODAVATEL where JMENO = ORDER_SENT.DODAVATEL);

update ORDER_SENT_QUANTITY
set MNOZSTVI = coalesce(parse_number(MNOZSTVI, LABEL, 6), '0');

select refuse('ML048', s.SKLADPOL) as refusal
from ORDER_SENT s
join ORDER_SENT_QUANTITY q on q.MNOZSTVI <> '0' and q.SKPLID is null
order by q.SLOT;

select refuse('ML047', coalesce(q.JEDNOTKY, q.SKPLID), s.SKLADPOL) as refusal
from ORDER_SENT s
join SKLADPOL i on i.NAZEV = s.SKLADPOL
join ORDER_SENT_QUANTITY q on coalesce(q.SKPLID, q.JEDNOTKY) is not null
where not exists (select 1
                  from SKPL u
                  where u.SKLPID = i.ID and (q.SKPLID is null or u.ID = as_integer(q.SKPLID))
                    and (q.JEDNOTKY is null or u.NAZEV = q.JEDNOTKY))
order by q.SLOT;

insert into ORDER_STAGED (SKLPID, UNITID, SKLDID, DODVID, MNOZSTVI, POPIS, KOMENTAR)
select i.ID, as_integer(q.SKPLID), (select ID from SKLAD where NAZEV = s.SKLAD),
       (select ID from DODAVATEL where JMENO = s.DODAVATEL), q.MNOZSTVI, s.POPIS, s.KOMENTAR
from ORDER_SENT s
join SKLADPOL i on i.NAZEV = s.SKLADPOL
join ORDER_SENT_QUANTITY q on q.MNOZSTVI <> '0'
order by q.SLOT;
