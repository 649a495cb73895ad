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

-- Of a row that the editor fills one slot has something; the empty ones cost nothing more than this.
insert into ORDER_SENT_QUANTITY (SLOT, LABEL, MNOZSTVI, SKPLID, JEDNOTKY)
select *
from (values
    (0, 'Množství', typed(:a_MNOZSTVI), typed_id(:a_SKPLID), typed(:a_JEDNOTKY)),
    (1, 'Množství ve vedlejší jednotce 1', typed(:a_MNOZSTVIV1), typed_id(:a_SKPLIDV1), typed(:a_JEDNOTKYV1)),
    (2, 'Množství ve vedlejší jednotce 2', typed(:a_MNOZSTVIV2), typed_id(:a_SKPLIDV2), typed(:a_JEDNOTKYV2)))
where coalesce(column3, column4, column5) is not null;

insert into ORDER_SENT (SKLADPOL, SKLAD, DODAVATEL, POPIS, KOMENTAR, SKLPID, SKLDID, DODVID)
values (typed(:a_SKLADPOL), typed(:a_SKLAD), typed(:a_DODAVATEL), typed(:a_POPIS), typed(:a_KOMENTAR),
        (select ID from SKLADPOL where NAZEV = typed(:a_SKLADPOL)), (select ID from SKLAD where NAZEV = typed(:a_SKLAD)),
        (select ID from DODAVATEL where JMENO = typed(:a_DODAVATEL)));

delete from ORDER_SENT
where coalesce(SKLADPOL, SKLAD, DODAVATEL, POPIS, KOMENTAR) is null
  and not exists (select 1 from ORDER_SENT_QUANTITY);

select case
           when SKLPID is null then refuse_unknown_item(SKLADPOL)
           when SKLAD is not null and SKLDID is null then refuse_unknown_warehouse(SKLAD)
           when DODAVATEL is not null and DODVID is null then refuse('ML045', DODAVATEL)
       end as refusal
from ORDER_SENT;

update ORDER_SENT_QUANTITY
set MNOZSTVI = coalesce(parse_number(MNOZSTVI, LABEL, 6), '0');

select refuse('ML048', s.SKLADPOL) as refusal
from ORDER_SENT s
join ORDER_SENT_QUANTITY q on q.MNOZSTVI <> '0' and q.SKPLID is null
order by q.SLOT;

select refuse('ML047', coalesce(q.JEDNOTKY, q.SKPLID), s.SKLADPOL) as refusal
from ORDER_SENT s
join ORDER_SENT_QUANTITY q on coalesce(q.SKPLID, q.JEDNOTKY) is not null
where not exists (select 1
                  from SKPL u
                  where u.SKLPID = s.SKLPID and (q.SKPLID is null or u.ID = as_integer(q.SKPLID))
                    and (q.JEDNOTKY is null or u.NAZEV = q.JEDNOTKY))
order by q.SLOT;

insert into ORDER_STAGED (SKLPID, UNITID, SKLDID, DODVID, MNOZSTVI, POPIS, KOMENTAR)
select s.SKLPID, as_integer(q.SKPLID), s.SKLDID, s.DODVID, q.MNOZSTVI, s.POPIS, s.KOMENTAR
from ORDER_SENT s
join ORDER_SENT_QUANTITY q on q.MNOZSTVI <> '0'
order by q.SLOT;
