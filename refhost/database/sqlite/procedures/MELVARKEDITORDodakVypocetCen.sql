-- Recalculates the prices of one delivery-note line while the clerk edits it. Nothing is stored.
--
-- a_ZMENENEBUNKY: keys of the cells that the clerk changed, each closed by ";". a_PREPOCETCEN: whether to recalculate;
-- without it the row only gets its canonical texts. a_FOCUS: the key of the cell that was just changed. One row comes
-- back, its columns named by the keys.
--
-- Refusals: ML110 unknown VAT rate, ML111 discount outside 0 to 100, ML112 VAT typed where no price follows from it, and
-- a text that is no number.
--
-- in: a_ZMENENEBUNKY
-- in: a_PREPOCETCEN boolean
-- in: a_FOCUS
-- in: a_JEDNCENABBEZSLEVY
-- in: a_JEDNDPHABEZSLEVY
-- in: a_JEDNDPHBBEZSLEVY
-- in: a_JEDNCENASBEZSLEVY
-- in: a_JEDNCENABSESLEVOU
-- in: a_JEDNDPHASESLEVOU
-- in: a_JEDNDPHBSESLEVOU
-- in: a_JEDNCENASSESLEVOU
-- in: a_CENABSESLEVOU
-- in: a_DPHASESLEVOU
-- in: a_DPHBSESLEVOU
-- in: a_CENASSESLEVOU
-- in: a_CENABBEZSLEVY
-- in: a_DPHABEZSLEVY
-- in: a_DPHBBEZSLEVY
-- in: a_CENASBEZSLEVY
-- in: a_DPH
-- in: a_SLEVA
-- in: a_MNOZSTVI
-- returns: JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY, JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU, CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU, CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY, DPH, SLEVA, MNOZSTVI

insert into RECALC_PRICE (LINE, LEVEL, SIDE, CENAB, DPHA, DPHB, CENAS)
values (1, 'unit', 'before',
        parse_number(:a_JEDNCENABBEZSLEVY, 'Jednotková cena'), parse_number(:a_JEDNDPHABEZSLEVY, 'Jednotková cena'),
        parse_number(:a_JEDNDPHBBEZSLEVY, 'Jednotková cena'), parse_number(:a_JEDNCENASBEZSLEVY, 'Jednotková cena')),
       (1, 'unit', 'after',
        parse_number(:a_JEDNCENABSESLEVOU, 'Jednotková cena'), parse_number(:a_JEDNDPHASESLEVOU, 'Jednotková cena'),
        parse_number(:a_JEDNDPHBSESLEVOU, 'Jednotková cena'), parse_number(:a_JEDNCENASSESLEVOU, 'Jednotková cena')),
       (1, 'total', 'after',
        parse_number(:a_CENABSESLEVOU, 'Celková cena'), parse_number(:a_DPHASESLEVOU, 'Celková cena'),
        parse_number(:a_DPHBSESLEVOU, 'Celková cena'), parse_number(:a_CENASSESLEVOU, 'Celková cena')),
       (1, 'total', 'before',
        parse_number(:a_CENABBEZSLEVY, 'Celková cena'), parse_number(:a_DPHABEZSLEVY, 'Celková cena'),
        parse_number(:a_DPHBBEZSLEVY, 'Celková cena'), parse_number(:a_CENASBEZSLEVY, 'Celková cena'));

insert into RECALC_LINE (LINE, DPH, SLEVA, MNOZSTVI, RECALCULATE)
values (1, :a_DPH, parse_number(:a_SLEVA, 'Sleva'), dec_round(parse_number(:a_MNOZSTVI, 'Množství'), 6),
        coalesce(:a_PREPOCETCEN, 0));

-- The price in focus is the truth; emptied, it leaves the row alone.
update RECALC_LINE
set TRUTH_LEVEL = LEVEL, TRUTH_SIDE = SIDE, TRUTH_KIND = KIND
from RECALC_KEY
where KEY = :a_FOCUS;

update RECALC_LINE
set RECALCULATE = 0
where TRUTH_LEVEL is not null and not exists (select * from RECALC_CELL where KEY = :a_FOCUS);

-- After any other cell the truth is what the clerk fixed himself: his marks choose level, side and kind, and the first
-- price that is not empty counts, sought from that choice on.
with MARKED as (
    select LEVEL, SIDE, KIND
    from RECALC_KEY
    where instr(';' || :a_ZMENENEBUNKY || ';', ';' || KEY || ';') > 0
),
CHOSEN_LEVEL as (
    select case
               when dec_cmp(MNOZSTVI, 0) <> 0 and 'total' in (select LEVEL from MARKED)
                    and 'unit' not in (select LEVEL from MARKED) then 'total'
               else 'unit'
           end as LEVEL
    from RECALC_LINE
),
CHOSEN_SIDE as (
    select LEVEL,
           case
               when 'after' in (select SIDE from MARKED where MARKED.LEVEL = CHOSEN_LEVEL.LEVEL)
                    and 'before' not in (select SIDE from MARKED where MARKED.LEVEL = CHOSEN_LEVEL.LEVEL) then 'after'
               else 'before'
           end as SIDE
    from CHOSEN_LEVEL
),
CHOSEN as (
    select LEVEL, SIDE,
           case
               when (LEVEL, SIDE, 'CENAS') in (select * from MARKED)
                    and (LEVEL, SIDE, 'CENAB') not in (select * from MARKED) then 'CENAS'
               else 'CENAB'
           end as KIND
    from CHOSEN_SIDE
)
update RECALC_LINE
set TRUTH_LEVEL = FOUND.LEVEL, TRUTH_SIDE = FOUND.SIDE, TRUTH_KIND = FOUND.KIND
from (select CELL.LEVEL, CELL.SIDE, CELL.KIND
      from RECALC_CELL as CELL cross join CHOSEN
      where CELL.KIND in ('CENAB', 'CENAS')
      order by CELL.LEVEL <> CHOSEN.LEVEL, CELL.SIDE <> CHOSEN.SIDE, CELL.KIND <> CHOSEN.KIND
      limit 1) as FOUND
where TRUTH_LEVEL is null;

-- include: recalculation

select JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, JEDNCENASBEZSLEVY,
       JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU,
       CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU,
       CENABBEZSLEVY, DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY,
       DPH, SLEVA, MNOZSTVI
from RECALC_RESULT;

delete from RECALC_LINE;

delete from RECALC_PRICE;
