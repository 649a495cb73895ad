-- The moment whose price lists and deliveries count for a document: when it was ordered; for a template, and without a
-- document, now.
create function order_moment(document integer) returns timestamp
language sql stable as $$
    select coalesce((select OBJEDNANIDC from DODOBJEDNAVKA where ID = document), now_moment())
$$;
