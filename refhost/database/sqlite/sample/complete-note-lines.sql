-- Completes the delivery-note lines that have only their unit price without VAT before the discount: all their other
-- prices follow from it. For rows that were written into the tables at once; lines that a clerk saves come complete.

insert into RECALC_LINE (LINE, MNOZSTVI, DPH, SLEVA, TRUTH_LEVEL, TRUTH_SIDE, TRUTH_KIND)
select p.ID, p.MNOZSTVI, r.NAZEV, p.SLEVA, 'unit', 'before', 'CENAB'
from DODAKPOL p
left join DPH r on r.ID = p.DPHID
where p.JEDNCENABBEZSLEVY is not null and p.JEDNCENASBEZSLEVY is null;

insert into RECALC_PRICE (LINE, LEVEL, SIDE, CENAB)
select l.LINE, 'unit', 'before', p.JEDNCENABBEZSLEVY
from RECALC_LINE l
join DODAKPOL p on p.ID = l.LINE;

-- include: recalculation

update DODAKPOL
set JEDNCENABBEZSLEVY = UB.CENAB, JEDNDPHABEZSLEVY = UB.DPHA, JEDNDPHBBEZSLEVY = UB.DPHB, JEDNCENASBEZSLEVY = UB.CENAS,
    JEDNCENABSESLEVOU = UA.CENAB, JEDNDPHASESLEVOU = UA.DPHA, JEDNDPHBSESLEVOU = UA.DPHB, JEDNCENASSESLEVOU = UA.CENAS,
    CENABBEZSLEVY = TB.CENAB, DPHABEZSLEVY = TB.DPHA, DPHBBEZSLEVY = TB.DPHB, CENASBEZSLEVY = TB.CENAS,
    CENABSESLEVOU = TA.CENAB, DPHASESLEVOU = TA.DPHA, DPHBSESLEVOU = TA.DPHB, CENASSESLEVOU = TA.CENAS
from RECALC_PRICE UB, RECALC_PRICE UA, RECALC_PRICE TB, RECALC_PRICE TA
where UB.LINE = DODAKPOL.ID and UB.LEVEL = 'unit' and UB.SIDE = 'before'
  and UA.LINE = DODAKPOL.ID and UA.LEVEL = 'unit' and UA.SIDE = 'after'
  and TB.LINE = DODAKPOL.ID and TB.LEVEL = 'total' and TB.SIDE = 'before'
  and TA.LINE = DODAKPOL.ID and TA.LEVEL = 'total' and TA.SIDE = 'after';

delete from RECALC_LINE;

delete from RECALC_PRICE;
