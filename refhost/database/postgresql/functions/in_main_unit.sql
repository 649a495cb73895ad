-- A quantity in the item's main unit, the measure of what is delivered; the factor is that of the quantity's own unit.
create function in_main_unit(quantity numeric, factor numeric) returns numeric
language sql immutable as $$
    select round(quantity * factor, 6)
$$;
