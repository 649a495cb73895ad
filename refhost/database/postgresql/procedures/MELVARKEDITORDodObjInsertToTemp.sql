-- Checks one row of an order or template and keeps it for the closing call. Texts come as they stand in the editor's
-- cells; a row without any is ignored. An empty warehouse or supplier is the document's own.
--
-- Refusals: ML040, ML041 no save is under way; ML042, ML043 item; ML044 warehouse; ML045 supplier; ML001, ML005, ML006
-- quantities; ML048 a quantity without a unit, ML047 a unit that is not the item's.
--
-- after failure: staging refused

create function MELVARKEDITORDodObjInsertToTemp(
    a_SKLADPOL text default null,
    a_SKLAD text default null,
    a_DODAVATEL text default null,
    a_SKPLID text default null,
    a_MNOZSTVI text default null,
    a_JEDNOTKY text default null,
    a_SKPLIDV1 text default null,
    a_MNOZSTVIV1 text default null,
    a_JEDNOTKYV1 text default null,
    a_SKPLIDV2 text default null,
    a_MNOZSTVIV2 text default null,
    a_JEDNOTKYV2 text default null,
    a_POPIS text default null,
    a_KOMENTAR text default null)
returns void
language plpgsql as $$
declare
    sent order_quantity[];
    staged DODOBJPOL;
begin
    perform refuse_closed_staging();
    if typed(concat(a_SKLADPOL, a_SKLAD, a_DODAVATEL, typed_id(a_SKPLID), a_MNOZSTVI, a_JEDNOTKY,
                    typed_id(a_SKPLIDV1), a_MNOZSTVIV1, a_JEDNOTKYV1, typed_id(a_SKPLIDV2), a_MNOZSTVIV2, a_JEDNOTKYV2,
                    a_POPIS, a_KOMENTAR)) is null
    then
        return;
    end if;

    perform refuse_unknown_item(typed(a_SKLADPOL));
    perform refuse_unknown_warehouse(typed(a_SKLAD));
    perform refuse_unknown_supplier_name(typed(a_DODAVATEL));
    staged.SKLPID := (select i.ID from SKLADPOL i where i.NAZEV = typed(a_SKLADPOL));
    staged.SKLDID := (select s.ID from SKLAD s where s.NAZEV = typed(a_SKLAD));
    staged.DODVID := (select v.ID from DODAVATEL v where v.JMENO = typed(a_DODAVATEL));
    staged.POPIS := typed(a_POPIS);
    staged.KOMENTAR := typed(a_KOMENTAR);

    sent[0] := row(parse_number(typed(a_MNOZSTVI), 'Množství', 6), typed_id(a_SKPLID), typed(a_JEDNOTKY));
    sent[1] := row(parse_number(typed(a_MNOZSTVIV1), 'Množství ve vedlejší jednotce 1', 6),
                   typed_id(a_SKPLIDV1), typed(a_JEDNOTKYV1));
    sent[2] := row(parse_number(typed(a_MNOZSTVIV2), 'Množství ve vedlejší jednotce 2', 6),
                   typed_id(a_SKPLIDV2), typed(a_JEDNOTKYV2));
    perform refuse_wrong_unit(staged.SKLPID, typed(a_SKLADPOL), sent);

    for slot in 0..2 loop
        staged.MNOZSTVI := (sent[slot]).MNOZSTVI;
        staged.SKPLID := as_integer((sent[slot]).SKPLID);
        if staged.MNOZSTVI <> 0 then
            insert into pg_temp.ORDER_STAGED (LINE) values (staged);
        end if;
    end loop;
end
$$;
