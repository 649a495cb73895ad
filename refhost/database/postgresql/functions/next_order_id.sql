-- The identifier of a new order or template: above all that there are. The sequence alone does not know of one that
-- somebody chose himself. Sessions that make orders follow one another, so that no two move the sequence to the same place.
create function next_order_id() returns integer
language plpgsql as $$
declare
    ids constant regclass := pg_get_serial_sequence('melvark.dodobjednavka', 'id');
    highest integer;
    given integer;
begin
    perform pg_advisory_xact_lock(hashtext('melvark orders'));
    given := nextval(ids);
    select max(o.ID) into highest from DODOBJEDNAVKA o;
    if highest >= given then
        perform setval(ids, highest);
        given := nextval(ids);
    end if;
    return given;
end
$$;
