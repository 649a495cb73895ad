-- Checks one row of a delivery note and keeps it for the closing call. Texts come as they stand in the editor's cells; a
-- row without any is ignored, one without a quantity is checked only. An empty warehouse is the note's own, an empty VAT
-- rate none.
--
-- Refusals: ML040, ML041 no save is under way; ML042, ML043 item; ML044 warehouse; ML110 VAT rate; ML049, ML050 order
-- line; ML001, ML005, ML006 numbers; ML111 discount; ML002 shelf life; ML052 a total that its quantity and unit price
-- do not give.
--
-- after failure: staging refused

create function MELVARKEDITORDodakInsertToTemp(
    a_DOBSID text default null,
    a_SKLADPOL text default null,
    a_SKLAD text default null,
    a_MNOZSTVI text default null,
    a_DPH text default null,
    a_SLEVA text default null,
    a_JEDNCENABSL text default null,
    a_JEDNDPHASL text default null,
    a_JEDNDPHBSL text default null,
    a_JEDNCENASSL text default null,
    a_JEDNCENAB text default null,
    a_JEDNDPHA text default null,
    a_JEDNDPHB text default null,
    a_JEDNCENAS text default null,
    a_CENABSL text default null,
    a_DPHASL text default null,
    a_DPHBSL text default null,
    a_CENASSL text default null,
    a_CENAB text default null,
    a_DPHA text default null,
    a_DPHB text default null,
    a_CENAS text default null,
    a_TRVANLIVOST text default null)
returns void
language plpgsql as $$
declare
    discount numeric;
    staged DODAKPOL;
begin
    perform refuse_closed_staging();
    if typed(concat(typed_id(a_DOBSID), a_SKLADPOL, a_SKLAD, a_MNOZSTVI, a_DPH, a_SLEVA,
                    a_JEDNCENABSL, a_JEDNDPHASL, a_JEDNDPHBSL, a_JEDNCENASSL,
                    a_JEDNCENAB, a_JEDNDPHA, a_JEDNDPHB, a_JEDNCENAS,
                    a_CENABSL, a_DPHASL, a_DPHBSL, a_CENASSL, a_CENAB, a_DPHA, a_DPHB, a_CENAS, a_TRVANLIVOST)) is null
    then
        return;
    end if;

    perform refuse_unknown_item(typed(a_SKLADPOL));
    perform refuse_unknown_warehouse(typed(a_SKLAD));
    staged.SKLPID := (select i.ID from SKLADPOL i where i.NAZEV = typed(a_SKLADPOL));
    staged.SKLDID := (select s.ID from SKLAD s where s.NAZEV = typed(a_SKLAD));
    staged.DPHID := note_line_rate(typed(a_DPH));
    staged.DOBSID := note_line_order_line(typed_id(a_DOBSID), staged.SKLPID);

    staged.MNOZSTVI := coalesce(parse_number(typed(a_MNOZSTVI), 'Množství', 6), 0);
    discount := parse_number(typed(a_SLEVA), 'Sleva', 2);
    staged.JEDNCENABSESLEVOU := parse_number(typed(a_JEDNCENABSL), 'Jednotková cena', 6);
    staged.JEDNDPHASESLEVOU := parse_number(typed(a_JEDNDPHASL), 'Jednotková cena', 6);
    staged.JEDNDPHBSESLEVOU := parse_number(typed(a_JEDNDPHBSL), 'Jednotková cena', 6);
    staged.JEDNCENASSESLEVOU := parse_number(typed(a_JEDNCENASSL), 'Jednotková cena', 6);
    staged.JEDNCENABBEZSLEVY := parse_number(typed(a_JEDNCENAB), 'Jednotková cena', 6);
    staged.JEDNDPHABEZSLEVY := parse_number(typed(a_JEDNDPHA), 'Jednotková cena', 6);
    staged.JEDNDPHBBEZSLEVY := parse_number(typed(a_JEDNDPHB), 'Jednotková cena', 6);
    staged.JEDNCENASBEZSLEVY := parse_number(typed(a_JEDNCENAS), 'Jednotková cena', 6);
    staged.CENABSESLEVOU := parse_number(typed(a_CENABSL), 'Celková cena', 2);
    staged.DPHASESLEVOU := parse_number(typed(a_DPHASL), 'Celková cena', 2);
    staged.DPHBSESLEVOU := parse_number(typed(a_DPHBSL), 'Celková cena', 2);
    staged.CENASSESLEVOU := parse_number(typed(a_CENASSL), 'Celková cena', 2);
    staged.CENABBEZSLEVY := parse_number(typed(a_CENAB), 'Celková cena', 2);
    staged.DPHABEZSLEVY := parse_number(typed(a_DPHA), 'Celková cena', 2);
    staged.DPHBBEZSLEVY := parse_number(typed(a_DPHB), 'Celková cena', 2);
    staged.CENASBEZSLEVY := parse_number(typed(a_CENAS), 'Celková cena', 2);
    perform recalculation_discount(discount);
    staged.SLEVA := discount;
    staged.TRVANLIVOST := parse_date(typed(a_TRVANLIVOST), 'Trvanlivost');

    if staged.MNOZSTVI <> 0 then
        perform refuse_unbalanced_note_line(staged);
        insert into pg_temp.NOTE_STAGED (LINE) values (staged);
    end if;
end
$$;
