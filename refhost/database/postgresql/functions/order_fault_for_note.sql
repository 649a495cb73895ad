-- Why an order cannot be the source of a delivery note: the code of the refusal, null when it can. An identifier that is
-- null, 0 or negative is none and restricts nothing; so does an order without a supplier.
--
-- `skldid`, `dodvid` and `delivered` (1: nothing is left to deliver) are the order's, `supplier` is the note's.
create function order_fault_for_note(id integer, skldid integer, dodvid integer, note integer, supplier integer,
                                     delivered integer) returns text
language plpgsql stable as $$
begin
    return case
        when not exists (select from melvark.DODOBJEDNAVKA o where o.ID = $1 and o.VZOR = 0) then 'ML021'
        when note > 0 and not exists (select from melvark.DODAK d where d.ID = note) then 'ML010'
        when dodvid > 0 and supplier > 0 and dodvid <> supplier then 'ML024'
        when skldid > 0 and skldid <> (select d.SKLDID from melvark.DODAK d where d.ID = note) then 'ML025'
        when delivered = 1 then 'ML026'
    end;
end
$$;
