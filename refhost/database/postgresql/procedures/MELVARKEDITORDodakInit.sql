-- What the delivery-note editor needs before it opens, in three result sets: the user and whether local VAT is on; the VAT
-- rates that are valid today, by rate; the warehouses. Refuses nothing.
create function MELVARKEDITORDodakInit() returns setof refcursor
language plpgsql stable as $$
declare
    -- The rows of a cursor are made when the procedure has ended, with the rights of its caller, who may call no function
    -- that only we use.
    person constant text := current_user_name();
    day constant date := today();
    company refcursor;
    rates refcursor;
    warehouses refcursor;
begin
    open company for
        select person as UZIVATEL,
               (coalesce(V_GetGlobalParam('DPH', 'DPHBLIC'), '0') = '1')::integer as DPHBLIC;
    return next company;
    open rates for
        select NAZEV
        from DPH
        where PLATIOD <= day and (PLATIDO is null or PLATIDO >= day)
        order by SAZBA;
    return next rates;
    open warehouses for
        select NAZEV from SKLAD_V order by NAZEV;
    return next warehouses;
end
$$;
