-- What an order line orders, in the item's main unit: the measure of what is delivered on it.
create function ordered_in_main_unit(line integer) returns numeric
language sql stable as $$
    select round(p.MNOZSTVI * j.FAKTOR, 6)
    from DODOBJPOL p
    join SKPL j on j.ID = p.SKPLID
    where p.ID = line
$$;
