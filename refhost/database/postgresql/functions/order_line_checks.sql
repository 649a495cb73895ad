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

-- Refuses the first quantity without a unit (ML048), then the first unit that is not the item's or whose name and
-- identifier do not go together (ML047). `item_name` is the name of the item with the identifier.
create function refuse_wrong_unit(item integer, item_name text, sent order_quantity[]) returns void
language plpgsql as $$
declare
    quantity order_quantity;
begin
    foreach quantity in array sent loop
        if quantity.MNOZSTVI <> 0 and quantity.SKPLID is null then
            perform refuse('ML048', item_name);
        end if;
    end loop;
    foreach quantity in array sent loop
        if coalesce(quantity.SKPLID, quantity.JEDNOTKY) is not null
           and not exists (select
                           from SKPL u
                           where u.SKLPID = item
                             and (quantity.SKPLID is null or u.ID = as_integer(quantity.SKPLID))
                             and (quantity.JEDNOTKY is null or u.NAZEV = quantity.JEDNOTKY)) then
            perform refuse('ML047', coalesce(quantity.JEDNOTKY, quantity.SKPLID), item_name);
        end if;
    end loop;
end
$$;
