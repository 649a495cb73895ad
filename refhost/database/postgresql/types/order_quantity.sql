-- A quantity with its unit, by identifier and by name, as a saved row of an order sends them.
create type order_quantity as (MNOZSTVI numeric, SKPLID text, JEDNOTKY text);
