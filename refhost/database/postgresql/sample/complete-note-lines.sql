-- Completes the delivery-note lines that have only their unit price without VAT before the discount: all their other
-- prices follow from it. For rows that were written into the tables at once; lines that a clerk saves come complete.

update DODAKPOL
set JEDNCENABBEZSLEVY = (c.PRICES).unit_before.cenab, JEDNDPHABEZSLEVY = (c.PRICES).unit_before.dpha,
    JEDNDPHBBEZSLEVY = (c.PRICES).unit_before.dphb, JEDNCENASBEZSLEVY = (c.PRICES).unit_before.cenas,
    JEDNCENABSESLEVOU = (c.PRICES).unit_after.cenab, JEDNDPHASESLEVOU = (c.PRICES).unit_after.dpha,
    JEDNDPHBSESLEVOU = (c.PRICES).unit_after.dphb, JEDNCENASSESLEVOU = (c.PRICES).unit_after.cenas,
    CENABBEZSLEVY = (c.PRICES).total_before.cenab, DPHABEZSLEVY = (c.PRICES).total_before.dpha,
    DPHBBEZSLEVY = (c.PRICES).total_before.dphb, CENASBEZSLEVY = (c.PRICES).total_before.cenas,
    CENABSESLEVOU = (c.PRICES).total_after.cenab, DPHASESLEVOU = (c.PRICES).total_after.dpha,
    DPHBSESLEVOU = (c.PRICES).total_after.dphb, CENASSESLEVOU = (c.PRICES).total_after.cenas
from (select p.ID,
             recalculated_line(row(row(p.JEDNCENABBEZSLEVY, null, null, null)::price_row, null, null, null)::line_prices,
                               p.MNOZSTVI, recalculation_vat_rate(r.NAZEV), recalculation_local_rate(),
                               recalculation_discount(p.SLEVA), 'unit', 'before', 'CENAB') as PRICES
      from DODAKPOL p
      left join DPH r on r.ID = p.DPHID
      where p.JEDNCENABBEZSLEVY is not null and p.JEDNCENASBEZSLEVY is null
      offset 0) c
where c.ID = DODAKPOL.ID;
