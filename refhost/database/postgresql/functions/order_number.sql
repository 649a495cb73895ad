-- The number of an order that a save makes, by the year in which it was ordered and a serial number.
create function order_number(ordered timestamp, serial integer) returns text
language sql immutable as $$
    select 'OV' || to_char(ordered, 'YYYY') || '-' || lpad(serial::text, greatest(6, length(serial::text)), '0')
$$;
