-- The checks of a row of an order or template that is saved. Texts come without blanks around them, null for an empty
-- cell.

-- Refuses a supplier that does not exist (ML045); null is none and passes.
create function refuse_unknown_supplier_name(name text) returns void
language sql as $$
    select refuse('ML045', 'Dodavatel „' || shown(name) || '“ neexistuje. Vyberte dodavatele ze seznamu.')
    where name is not null and not exists (select from DODAVATEL v where v.JMENO = name)
$$;

-- Refuses the first quantity without a unit (ML048), then the first unit that is not the item's or whose name and
-- identifier do not go together (ML047).
create function refuse_wrong_unit(item integer, sent order_quantity[]) returns void
language sql as $$
    select refuse('ML048', 'Množství položky „' || shown(i.NAZEV)
                               || '“ nemá jednotku. Množství vymažte, nebo vyberte položku, která tu jednotku má.')
    from unnest(sent) q
    join SKLADPOL i on i.ID = item
    where q.MNOZSTVI <> 0 and q.SKPLID is null;

    select refuse('ML047', 'Jednotka „' || shown(coalesce(q.JEDNOTKY, q.SKPLID)) || '“ nepatří k položce „'
                               || shown(i.NAZEV) || '“. Načtěte řádek znovu.')
    from unnest(sent) with ordinality q (MNOZSTVI, SKPLID, JEDNOTKY, SLOT)
    join SKLADPOL i on i.ID = item
    where coalesce(q.SKPLID, q.JEDNOTKY) is not null
      and not exists (select
                      from SKPL u
                      where u.SKLPID = item and (q.SKPLID is null or u.ID = as_integer(q.SKPLID))
                        and (q.JEDNOTKY is null or u.NAZEV = q.JEDNOTKY))
    order by q.SLOT
$$;
