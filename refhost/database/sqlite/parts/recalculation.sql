-- Recalculates every line of RECALC_LINE from its truth: the truth's own row of prices is completed, carried to the other
-- side of the discount, and both sides are carried to the other level. A line without a truth comes back as it was given.
-- No statement here yields rows; read RECALC_RESULT afterwards.
--
-- Refusals: ML110 unknown VAT rate, ML111 discount outside 0 to 100, ML112 VAT typed where no price follows from it.

insert or ignore into RECALC_PRICE (LINE, LEVEL, SIDE)
select LINE, LEVEL, SIDE from RECALC_LINE cross join (select distinct LEVEL, SIDE from RECALC_KEY);

update RECALC_PRICE
set CENAB = dec_round(CENAB, DECIMALS), DPHA = dec_round(DPHA, DECIMALS),
    DPHB = dec_round(DPHB, DECIMALS), CENAS = dec_round(CENAS, DECIMALS);

update RECALC_LINE
set RATE_A = case
        when typed(DPH) is null then '0'
        else coalesce((select dec_round(SAZBA, 2) from DPH as RATE where RATE.NAZEV = typed(RECALC_LINE.DPH)),
                      refuse('ML110', typed(DPH)))
    end,
    RATE_L = coalesce((select dec_round(parse_number(RATE.HODNOTA), 2)
                       from GLOBALPARAM as RATE
                       join GLOBALPARAM as SWITCH on SWITCH.SEKCE = 'DPH' and SWITCH.NAZEV = 'DPHBLIC'
                       where RATE.SEKCE = 'DPH' and RATE.NAZEV = 'SAZBADPHB' and SWITCH.HODNOTA = '1'), '0')
where RECALCULATE;

-- A discount is judged as it was typed: 100.001 is refused although it would round to 100.
update RECALC_LINE
set SLEVA = refuse('ML111', number_text(SLEVA))
where RECALCULATE and (dec_cmp(SLEVA, 0) < 0 or dec_cmp(SLEVA, 100) > 0);

update RECALC_LINE
set MNOZSTVI = dec_round(MNOZSTVI, 6), SLEVA = dec_round(SLEVA, 2);

-- A truth that is empty is none.
update RECALC_LINE
set TRUTH_LEVEL = null
where not RECALCULATE
   or not exists (select * from RECALC_CELL
                  where RECALC_CELL.LINE = RECALC_LINE.LINE
                    and LEVEL = TRUTH_LEVEL and SIDE = TRUTH_SIDE and KIND = TRUTH_KIND);

update RECALC_LINE
set SIDE_MULTIPLIER = case TRUTH_SIDE when 'before' then dec_sub(100, coalesce(SLEVA, 0)) else '100' end,
    SIDE_DIVISOR = case TRUTH_SIDE when 'before' then '100' else nullif(dec_sub(100, coalesce(SLEVA, 0)), '0') end,
    LEVEL_MULTIPLIER = case TRUTH_LEVEL when 'unit' then nullif(MNOZSTVI, '0') else '1' end,
    LEVEL_DIVISOR = case TRUTH_LEVEL when 'unit' then '1' else nullif(MNOZSTVI, '0') end;

update RECALC_PRICE
set GIVEN = 1
from RECALC_LINE as L
where L.LINE = RECALC_PRICE.LINE and LEVEL = TRUTH_LEVEL and SIDE = TRUTH_SIDE;

-- A typed VAT part keeps the price beside it; where there is none, the price follows from the part.
update RECALC_PRICE
set CENAB = case
        when TRUTH_KIND = 'DPHA' and RATE_A <> '0' then dec_div(dec_mul(DPHA, 100), RATE_A, DECIMALS)
        when TRUTH_KIND = 'DPHB' and RATE_L <> '0' then dec_div(dec_mul(DPHB, 100), RATE_L, DECIMALS)
        else refuse('ML112')
    end
from RECALC_LINE as L
where L.LINE = RECALC_PRICE.LINE and GIVEN and TRUTH_KIND in ('DPHA', 'DPHB') and CENAB is null;

update RECALC_PRICE
set DPHA = coalesce(DPHA, dec_div(dec_mul(CENAB, RATE_A), 100, DECIMALS)),
    DPHB = coalesce(DPHB, dec_div(dec_mul(CENAB, RATE_L), 100, DECIMALS))
from RECALC_LINE as L
where L.LINE = RECALC_PRICE.LINE and GIVEN and TRUTH_KIND in ('DPHA', 'DPHB');

-- The other side of the discount. All four kinds are carried: of a typed VAT part the three that its sum is made of
-- count, otherwise only the kind of the truth; what does not count is replaced when the row is completed.
update RECALC_PRICE
set GIVEN = 1,
    CENAB = dec_div(dec_mul(T.CENAB, SIDE_MULTIPLIER), SIDE_DIVISOR, RECALC_PRICE.DECIMALS),
    DPHA = dec_div(dec_mul(T.DPHA, SIDE_MULTIPLIER), SIDE_DIVISOR, RECALC_PRICE.DECIMALS),
    DPHB = dec_div(dec_mul(T.DPHB, SIDE_MULTIPLIER), SIDE_DIVISOR, RECALC_PRICE.DECIMALS),
    CENAS = dec_div(dec_mul(T.CENAS, SIDE_MULTIPLIER), SIDE_DIVISOR, RECALC_PRICE.DECIMALS)
from RECALC_LINE as L
join RECALC_PRICE as T on T.LINE = L.LINE and T.LEVEL = L.TRUTH_LEVEL and T.SIDE = L.TRUTH_SIDE
where RECALC_PRICE.LINE = L.LINE and RECALC_PRICE.LEVEL = L.TRUTH_LEVEL and RECALC_PRICE.SIDE <> L.TRUTH_SIDE
  and SIDE_DIVISOR is not null;

-- Nothing leads back from a discount of 100 %: the price before it stays, where there is one.
update RECALC_PRICE
set GIVEN = 1,
    DPHA = dec_div(dec_mul(CENAB, RATE_A), 100, DECIMALS),
    DPHB = dec_div(dec_mul(CENAB, RATE_L), 100, DECIMALS)
from RECALC_LINE as L
where RECALC_PRICE.LINE = L.LINE and LEVEL = TRUTH_LEVEL and SIDE <> TRUTH_SIDE and SIDE_DIVISOR is null
  and case TRUTH_KIND when 'CENAS' then CENAS else CENAB end is not null;

-- The other level, each side from its own.
update RECALC_PRICE
set GIVEN = 1,
    CENAB = dec_div(dec_mul(T.CENAB, LEVEL_MULTIPLIER), LEVEL_DIVISOR, RECALC_PRICE.DECIMALS),
    DPHA = dec_div(dec_mul(T.DPHA, LEVEL_MULTIPLIER), LEVEL_DIVISOR, RECALC_PRICE.DECIMALS),
    DPHB = dec_div(dec_mul(T.DPHB, LEVEL_MULTIPLIER), LEVEL_DIVISOR, RECALC_PRICE.DECIMALS),
    CENAS = dec_div(dec_mul(T.CENAS, LEVEL_MULTIPLIER), LEVEL_DIVISOR, RECALC_PRICE.DECIMALS)
from RECALC_LINE as L
join RECALC_PRICE as T on T.LINE = L.LINE and T.LEVEL = L.TRUTH_LEVEL and T.GIVEN
where RECALC_PRICE.LINE = L.LINE and RECALC_PRICE.LEVEL <> L.TRUTH_LEVEL and RECALC_PRICE.SIDE = T.SIDE
  and LEVEL_MULTIPLIER is not null and LEVEL_DIVISOR is not null;

-- Without a quantity a total that nothing gave would belong to an older one.
update RECALC_PRICE
set CENAB = null, DPHA = null, DPHB = null, CENAS = null
from RECALC_LINE as L
where RECALC_PRICE.LINE = L.LINE and TRUTH_LEVEL is not null and coalesce(MNOZSTVI, '0') = '0'
  and LEVEL = 'total' and not GIVEN;

-- Each given row is completed from the kind of the truth.
update RECALC_PRICE
set CENAB = dec_div(dec_mul(CENAS, 100), dec_add(100, dec_add(RATE_A, RATE_L)), DECIMALS)
from RECALC_LINE as L
where L.LINE = RECALC_PRICE.LINE and GIVEN and TRUTH_KIND = 'CENAS';

update RECALC_PRICE
set DPHB = case
        when TRUTH_KIND = 'CENAS' and RATE_A = '0' then dec_sub(CENAS, CENAB)
        else dec_div(dec_mul(CENAB, RATE_L), 100, DECIMALS)
    end
from RECALC_LINE as L
where L.LINE = RECALC_PRICE.LINE and GIVEN and TRUTH_KIND in ('CENAB', 'CENAS');

update RECALC_PRICE
set DPHA = case TRUTH_KIND
        when 'CENAS' then dec_sub(dec_sub(CENAS, CENAB), DPHB)
        else dec_div(dec_mul(CENAB, RATE_A), 100, DECIMALS)
    end
from RECALC_LINE as L
where L.LINE = RECALC_PRICE.LINE and GIVEN and TRUTH_KIND in ('CENAB', 'CENAS');

update RECALC_PRICE
set CENAS = dec_add(CENAB, dec_add(DPHA, DPHB))
where GIVEN;
