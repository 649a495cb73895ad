-- Checks one row of a delivery note and keeps it for the closing call. Texts come as they stand in the editor's cells; a
-- row without any is ignored. An empty warehouse is the note's own, an empty VAT rate none.
--
-- Refusals: ML040, ML041 no save is under way; ML042, ML043 item; ML044 warehouse; ML110 VAT rate; ML049, ML050 order
-- line; ML001, ML005, ML006 numbers; ML111 discount; ML002 shelf life; ML052 a total that its quantity and unit price
-- do not give.
--
-- in: a_DOBSID
-- in: a_SKLADPOL
-- in: a_SKLAD
-- in: a_MNOZSTVI
-- in: a_DPH
-- in: a_SLEVA
-- in: a_JEDNCENABSL
-- in: a_JEDNDPHASL
-- in: a_JEDNDPHBSL
-- in: a_JEDNCENASSL
-- in: a_JEDNCENAB
-- in: a_JEDNDPHA
-- in: a_JEDNDPHB
-- in: a_JEDNCENAS
-- in: a_CENABSL
-- in: a_DPHASL
-- in: a_DPHBSL
-- in: a_CENASSL
-- in: a_CENAB
-- in: a_DPHA
-- in: a_DPHB
-- in: a_CENAS
-- in: a_TRVANLIVOST
-- answer: may come later
-- after failure: staging refused

select refuse_closed_staging() as refusal;

update STAGING set LASTROW = LASTROW + 1;

delete from NOTE_SENT;

insert into NOTE_SENT (DOBSID, SKLADPOL, SKLAD, DPH, MNOZSTVI, SLEVA,
                       JEDNCENABSL, JEDNDPHASL, JEDNDPHBSL, JEDNCENASSL, JEDNCENAB, JEDNDPHA, JEDNDPHB, JEDNCENAS,
                       CENABSL, DPHASL, DPHBSL, CENASSL, CENAB, DPHA, DPHB, CENAS, TRVANLIVOST,
                       ORDERLINEID, SKLPID, SKLDID, DPHID)
values (typed_id(:a_DOBSID), typed(:a_SKLADPOL), typed(:a_SKLAD), typed(:a_DPH), typed(:a_MNOZSTVI), typed(:a_SLEVA),
        typed(:a_JEDNCENABSL), typed(:a_JEDNDPHASL), typed(:a_JEDNDPHBSL), typed(:a_JEDNCENASSL),
        typed(:a_JEDNCENAB), typed(:a_JEDNDPHA), typed(:a_JEDNDPHB), typed(:a_JEDNCENAS),
        typed(:a_CENABSL), typed(:a_DPHASL), typed(:a_DPHBSL), typed(:a_CENASSL),
        typed(:a_CENAB), typed(:a_DPHA), typed(:a_DPHB), typed(:a_CENAS), typed(:a_TRVANLIVOST),
        (select p.ID
         from DODOBJPOL p
         join DODOBJEDNAVKA o on o.ID = p.DDOBID and o.VZOR = 0
         where p.ID = as_integer(:a_DOBSID)),
        (select ID from SKLADPOL where NAZEV = typed(:a_SKLADPOL)), (select ID from SKLAD where NAZEV = typed(:a_SKLAD)),
        (select ID from DPH where NAZEV = typed(:a_DPH)));

delete from NOTE_SENT
where coalesce(DOBSID, SKLADPOL, SKLAD, DPH, MNOZSTVI, SLEVA,
               JEDNCENABSL, JEDNDPHASL, JEDNDPHBSL, JEDNCENASSL, JEDNCENAB, JEDNDPHA, JEDNDPHB, JEDNCENAS,
               CENABSL, DPHASL, DPHBSL, CENASSL, CENAB, DPHA, DPHB, CENAS, TRVANLIVOST) is null;

select case
           when SKLPID is null then refuse_unknown_item(SKLADPOL)
           when SKLAD is not null and SKLDID is null then refuse_unknown_warehouse(SKLAD)
           when DPH is not null and DPHID is null then refuse('ML110', DPH)
           when DOBSID is not null and ORDERLINEID is null then refuse('ML049', DOBSID)
           when (select p.SKLPID from DODOBJPOL p where p.ID = ORDERLINEID) <> SKLPID
               then refuse('ML050', DOBSID, SKLADPOL)
       end as refusal
from NOTE_SENT;

insert into NOTE_STAGED (PLACE, DOBSID, SKLPID, SKLDID, DPHID, MNOZSTVI, SLEVA,
                         JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU,
                         JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY,
                         CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU,
                         CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY, TRVANLIVOST)
select (select LASTROW from STAGING), ORDERLINEID, SKLPID, SKLDID, DPHID,
       coalesce(parse_number(MNOZSTVI, 'Množství', 6), '0'), parse_number(SLEVA, 'Sleva', 2),
       parse_number(JEDNCENABSL, 'Jednotková cena', 6), parse_number(JEDNDPHASL, 'Jednotková cena', 6),
       parse_number(JEDNDPHBSL, 'Jednotková cena', 6), parse_number(JEDNCENASSL, 'Jednotková cena', 6),
       parse_number(JEDNCENAB, 'Jednotková cena', 6), parse_number(JEDNDPHA, 'Jednotková cena', 6),
       parse_number(JEDNDPHB, 'Jednotková cena', 6), parse_number(JEDNCENAS, 'Jednotková cena', 6),
       parse_number(CENABSL, 'Celková cena', 2), parse_number(DPHASL, 'Celková cena', 2),
       parse_number(DPHBSL, 'Celková cena', 2), parse_number(CENASSL, 'Celková cena', 2),
       parse_number(CENAB, 'Celková cena', 2), parse_number(DPHA, 'Celková cena', 2),
       parse_number(DPHB, 'Celková cena', 2), parse_number(CENAS, 'Celková cena', 2),
       -- A discount that is refused below is refused before the shelf life.
       iif(dec_cmp(parse_number(SLEVA), 0) < 0 or dec_cmp(parse_number(SLEVA), 100) > 0, null,
           parse_date(TRVANLIVOST, 'Trvanlivost'))
from NOTE_SENT;

select case
           when dec_cmp(SLEVA, 0) < 0 or dec_cmp(SLEVA, 100) > 0 then refuse('ML111', number_text(SLEVA))
           when MNOZSTVI <> '0' and not dec_products_agree(MNOZSTVI, TOLERANCE,
                    JEDNCENABSESLEVOU, CENABSESLEVOU, JEDNDPHASESLEVOU, DPHASESLEVOU,
                    JEDNDPHBSESLEVOU, DPHBSESLEVOU, JEDNCENASSESLEVOU, CENASSESLEVOU,
                    JEDNCENABBEZSLEVY, CENABBEZSLEVY, JEDNDPHABEZSLEVY, DPHABEZSLEVY,
                    JEDNDPHBBEZSLEVY, DPHBBEZSLEVY, JEDNCENASBEZSLEVY, CENASBEZSLEVY)
               then refuse_unbalanced_note_line()
       end as refusal
from NOTE_LAST;
