-- The checks of a row of an order or template that is saved. Texts come without blanks around them, null for an empty
-- cell.

-- Refuses a supplier that does not exist (ML045); null is none and passes.
create function refuse_unknown_supplier_name(name text) returns void
language plpgsql as $$
begin
    if name is not null and not exists (select from DODAVATEL v where v.JMENO = name) then
        perform refuse('ML045', name);
    end if;
end
$$;

-- The unit of a slot of the row: its identifier, a blank and its name; null for an empty slot. A blank in what came for an
-- identifier becomes another sign: no identifier has one, and the first blank ends it.
create function order_slot_unit(unit_id text, unit_name text, quantity numeric) returns text
language sql stable as $$
    select case when num_nonnulls(unit_id, unit_name, quantity) > 0
                then concat(replace(unit_id, ' ', '?'), ' ', unit_name) end
$$;

-- Refuses the first quantity without a unit (ML048), then the first unit that is not the item's or whose name and
-- identifier do not go together (ML047). `item_name` is the name of the item with the identifier; the arrays have one
-- element for each quantity of the row.
create function refuse_wrong_unit(item integer, item_name text, quantities numeric[], unit_ids text[], unit_names text[])
returns void
language plpgsql as $$
declare
    wrong record;
begin
    select q.NAME, q.ID, q.QUANTITY <> 0 and q.ID is null as LACKS_UNIT into wrong
    from unnest(quantities, unit_ids, unit_names) with ordinality q (QUANTITY, ID, NAME, SLOT)
    where (q.QUANTITY <> 0 and q.ID is null)
       or (coalesce(q.ID, q.NAME) is not null
           and not exists (select
                           from SKPL u
                           where u.SKLPID = item and (q.ID is null or u.ID = as_integer(q.ID))
                             and (q.NAME is null or u.NAZEV = q.NAME)))
    order by coalesce(q.QUANTITY <> 0 and q.ID is null, false) desc, q.SLOT
    limit 1;
    if wrong.LACKS_UNIT then
        perform refuse('ML048', item_name);
    elsif found then
        perform refuse('ML047', coalesce(wrong.NAME, wrong.ID), item_name);
    end if;
end
$$;
