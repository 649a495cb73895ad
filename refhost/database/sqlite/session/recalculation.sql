-- Where delivery-note lines stand while their prices are recalculated: the part "recalculation" works on all of them at
-- once, one line for a clerk's change, hundreds when a document is filled. Whoever puts lines here takes them away when
-- he has read the result, so that the next one finds the tables empty.
--
-- A price has a level (for one unit, or the total for the quantity), a side (before or after the discount) and a kind
-- (CENAB without VAT, DPHA the VAT, DPHB the local VAT, CENAS with VAT). Numbers are canonical decimals, null for none.

-- The columns that a clerk's row fills stand in the order of its parameters: the engine evaluates the values of an insert
-- in the table's order, and the first bad one is the one to be named.
create temp table RECALC_LINE (
    LINE integer primary key,
    DPH text,                                -- the name of the VAT rate
    SLEVA text,                              -- percent
    MNOZSTVI text,
    RECALCULATE integer not null default 1,  -- 0: the line only gets its canonical texts
    TRUTH_LEVEL text,                        -- the price from which all others follow; null: none
    TRUTH_SIDE text,
    TRUTH_KIND text,
    -- Filled by the part:
    RATE_A text,                             -- percent
    RATE_L text,
    SIDE_MULTIPLIER text,                    -- price on the other side = price * multiplier / divisor,
    SIDE_DIVISOR text,                       -- both null where a discount of 100 % leaves no way back
    LEVEL_MULTIPLIER text,                   -- price on the other level likewise, both null without a quantity
    LEVEL_DIVISOR text
);

create temp table RECALC_PRICE (
    LINE integer not null,
    LEVEL text not null check (LEVEL in ('unit', 'total')),
    SIDE text not null check (SIDE in ('before', 'after')),
    CENAB text,
    DPHA text,
    DPHB text,
    CENAS text,
    GIVEN integer not null default 0,        -- the row holds the truth or a price carried over from it
    DECIMALS integer generated always as (case LEVEL when 'unit' then 6 else 2 end),
    primary key (LINE, LEVEL, SIDE)
) without rowid;

-- The sixteen price cells of the editor's row by their keys.
create temp view RECALC_KEY (KEY, LEVEL, SIDE, KIND) as
values ('JEDNCENABBEZSLEVY', 'unit', 'before', 'CENAB'),
       ('JEDNDPHABEZSLEVY', 'unit', 'before', 'DPHA'),
       ('JEDNDPHBBEZSLEVY', 'unit', 'before', 'DPHB'),
       ('JEDNCENASBEZSLEVY', 'unit', 'before', 'CENAS'),
       ('JEDNCENABSESLEVOU', 'unit', 'after', 'CENAB'),
       ('JEDNDPHASESLEVOU', 'unit', 'after', 'DPHA'),
       ('JEDNDPHBSESLEVOU', 'unit', 'after', 'DPHB'),
       ('JEDNCENASSESLEVOU', 'unit', 'after', 'CENAS'),
       ('CENABSESLEVOU', 'total', 'after', 'CENAB'),
       ('DPHASESLEVOU', 'total', 'after', 'DPHA'),
       ('DPHBSESLEVOU', 'total', 'after', 'DPHB'),
       ('CENASSESLEVOU', 'total', 'after', 'CENAS'),
       ('CENABBEZSLEVY', 'total', 'before', 'CENAB'),
       ('DPHABEZSLEVY', 'total', 'before', 'DPHA'),
       ('DPHBBEZSLEVY', 'total', 'before', 'DPHB'),
       ('CENASBEZSLEVY', 'total', 'before', 'CENAS');

-- The price cells that are not empty, as they stand now.
create temp view RECALC_CELL (LINE, KEY, LEVEL, SIDE, KIND, PRICE) as
select RECALC_PRICE.LINE, RECALC_KEY.KEY, LEVEL, SIDE, RECALC_KEY.KIND,
       case RECALC_KEY.KIND when 'CENAB' then CENAB when 'DPHA' then DPHA when 'DPHB' then DPHB else CENAS end as AMOUNT
from RECALC_PRICE join RECALC_KEY using (LEVEL, SIDE)
where AMOUNT is not null;

-- The lines as texts for the editor.
create temp view RECALC_RESULT as
select L.LINE,
       number_text(UB.CENAB) as JEDNCENABBEZSLEVY,
       number_text(UB.DPHA) as JEDNDPHABEZSLEVY,
       number_text(UB.DPHB) as JEDNDPHBBEZSLEVY,
       number_text(UB.CENAS) as JEDNCENASBEZSLEVY,
       number_text(UA.CENAB) as JEDNCENABSESLEVOU,
       number_text(UA.DPHA) as JEDNDPHASESLEVOU,
       number_text(UA.DPHB) as JEDNDPHBSESLEVOU,
       number_text(UA.CENAS) as JEDNCENASSESLEVOU,
       total_text(TA.CENAB) as CENABSESLEVOU,
       total_text(TA.DPHA) as DPHASESLEVOU,
       total_text(TA.DPHB) as DPHBSESLEVOU,
       total_text(TA.CENAS) as CENASSESLEVOU,
       total_text(TB.CENAB) as CENABBEZSLEVY,
       total_text(TB.DPHA) as DPHABEZSLEVY,
       total_text(TB.DPHB) as DPHBBEZSLEVY,
       total_text(TB.CENAS) as CENASBEZSLEVY,
       L.DPH,
       number_text(L.SLEVA) as SLEVA,
       number_text(L.MNOZSTVI) as MNOZSTVI
from RECALC_LINE as L
join RECALC_PRICE as UB on UB.LINE = L.LINE and UB.LEVEL = 'unit' and UB.SIDE = 'before'
join RECALC_PRICE as UA on UA.LINE = L.LINE and UA.LEVEL = 'unit' and UA.SIDE = 'after'
join RECALC_PRICE as TB on TB.LINE = L.LINE and TB.LEVEL = 'total' and TB.SIDE = 'before'
join RECALC_PRICE as TA on TA.LINE = L.LINE and TA.LEVEL = 'total' and TA.SIDE = 'after';

-- The texts of the rows of NOTE_FILL: those of a price list come out of the recalculation, prices that are carried over
-- stay as they are, save that totals belong to the quantity: a row that comes without it has none.
create temp view NOTE_FILL_PRICE as
select * from RECALC_RESULT
union all
select f.LINE,
       number_text(dec_round(p.JEDNCENABBEZSLEVY, 6)), number_text(dec_round(p.JEDNDPHABEZSLEVY, 6)),
       number_text(dec_round(p.JEDNDPHBBEZSLEVY, 6)), number_text(dec_round(p.JEDNCENASBEZSLEVY, 6)),
       number_text(dec_round(p.JEDNCENABSESLEVOU, 6)), number_text(dec_round(p.JEDNDPHASESLEVOU, 6)),
       number_text(dec_round(p.JEDNDPHBSESLEVOU, 6)), number_text(dec_round(p.JEDNCENASSESLEVOU, 6)),
       iif(f.MNOZSTVI is null, null, total_text(p.CENABSESLEVOU)),
       iif(f.MNOZSTVI is null, null, total_text(p.DPHASESLEVOU)),
       iif(f.MNOZSTVI is null, null, total_text(p.DPHBSESLEVOU)),
       iif(f.MNOZSTVI is null, null, total_text(p.CENASSESLEVOU)),
       iif(f.MNOZSTVI is null, null, total_text(p.CENABBEZSLEVY)),
       iif(f.MNOZSTVI is null, null, total_text(p.DPHABEZSLEVY)),
       iif(f.MNOZSTVI is null, null, total_text(p.DPHBBEZSLEVY)),
       iif(f.MNOZSTVI is null, null, total_text(p.CENASBEZSLEVY)),
       r.NAZEV, number_text(dec_round(f.SLEVA, 2)), number_text(dec_round(f.MNOZSTVI, 6))
from NOTE_FILL f
join DODAKPOL p on p.ID = f.SOURCEID
left join DPH r on r.ID = f.DPHID;
