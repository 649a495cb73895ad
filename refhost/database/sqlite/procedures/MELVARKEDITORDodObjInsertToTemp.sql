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

insert into ORDER_SENT (SKLADPOL, SKLAD, DODAVATEL, POPIS, KOMENTAR, SKLPID, SKLDID, DODVID)
select typed(:a_SKLADPOL), typed(:a_SKLAD), typed(:a_DODAVATEL), typed(:a_POPIS), typed(:a_KOMENTAR),
       (select ID from SKLADPOL where NAZEV = typed(:a_SKLADPOL)), (select ID from SKLAD where NAZEV = typed(:a_SKLAD)),
       (select ID from DODAVATEL where JMENO = typed(:a_DODAVATEL))
where coalesce(typed(:a_SKLADPOL), typed(:a_SKLAD), typed(:a_DODAVATEL), typed(:a_POPIS), typed(:a_KOMENTAR),
               typed(:a_MNOZSTVI), typed_id(:a_SKPLID), typed(:a_JEDNOTKY), typed(:a_MNOZSTVIV1), typed_id(:a_SKPLIDV1),
               typed(:a_JEDNOTKYV1), typed(:a_MNOZSTVIV2), typed_id(:a_SKPLIDV2), typed(:a_JEDNOTKYV2)) is not null;

select case
           when SKLPID is null then refuse_unknown_item(SKLADPOL)
           when SKLAD is not null and SKLDID is null then refuse_unknown_warehouse(SKLAD)
           when DODAVATEL is not null and DODVID is null then refuse('ML045', DODAVATEL)
       end as refusal
from ORDER_SENT;

-- Of a row that the editor fills one slot has something; the empty ones cost nothing more than this.
insert into ORDER_SENT_QUANTITY (SLOT, MNOZSTVI, SKPLID, JEDNOTKY)
select column1, coalesce(parse_number(column3, column2, 6), '0'), column4, column5
from (values
    (0, 'Množství', typed(:a_MNOZSTVI), typed_id(:a_SKPLID), typed(:a_JEDNOTKY)),
    (1, 'Množství ve vedlejší jednotce 1', typed(:a_MNOZSTVIV1), typed_id(:a_SKPLIDV1), typed(:a_JEDNOTKYV1)),
    (2, 'Množství ve vedlejší jednotce 2', typed(:a_MNOZSTVIV2), typed_id(:a_SKPLIDV2), typed(:a_JEDNOTKYV2)))
where coalesce(column3, column4, column5) is not null;

-- A quantity without a unit is told before a unit that is not the item's.
select case
           when q.MNOZSTVI <> '0' and q.SKPLID is null then refuse('ML048', s.SKLADPOL)
           when not exists (select 1 from ORDER_SENT_QUANTITY where MNOZSTVI <> '0' and SKPLID is null)
               then refuse('ML047', coalesce(q.JEDNOTKY, q.SKPLID), s.SKLADPOL)
       end as refusal
from ORDER_SENT s
join ORDER_SENT_QUANTITY q
where (q.MNOZSTVI <> '0' and q.SKPLID is null)
   or (coalesce(q.SKPLID, q.JEDNOTKY) is not null
       and not exists (select 1
                       from SKPL u
                       where u.SKLPID = s.SKLPID and (q.SKPLID is null or u.ID = as_integer(q.SKPLID))
                         and (q.JEDNOTKY is null or u.NAZEV = q.JEDNOTKY)))
order by q.SLOT;

insert into ORDER_STAGED (SKLPID, UNITID, SKLDID, DODVID, MNOZSTVI, POPIS, KOMENTAR)
select s.SKLPID, as_integer(q.SKPLID), s.SKLDID, s.DODVID, q.MNOZSTVI, s.POPIS, s.KOMENTAR
from ORDER_SENT s
join ORDER_SENT_QUANTITY q on q.MNOZSTVI <> '0'
order by q.SLOT;
