-- Takes the rows of this session over into an order or template: each quantity becomes a line in its unit, in the order of
-- the rows. A template keeps all lines with their suppliers. An order without a supplier takes that of the first line that
-- has one; lines of other suppliers go into new orders of theirs, with this order's moment and warehouse. The sources are
-- recorded. Without such rows nothing changes.
--
-- a_DDOBID_ZDROJ, a_DDOBIDVZOR_ZDROJ, a_DODKID_ZDROJ: the order, template or note that the rows were taken from, null for
-- none.
--
-- Refusals: ML040, ML041 no save is under way; ML012, ML013 the document is gone or closed; ML027 it is its own
-- source; ML055 a source is gone.
--
-- after failure: staging refused

create function MELVARKEDITORDodObjTempUloz(
    a_DDOBID integer default null,
    a_DDOBID_ZDROJ integer default null,
    a_DDOBIDVZOR_ZDROJ integer default null,
    a_DODKID_ZDROJ integer default null)
returns void
language plpgsql as $$
declare
    made record;
    serial integer;
    last_line integer;
begin
    perform refuse_closed_staging();
    perform note_save('DODOBJEDNAVKA', a_DDOBID);

    -- Saves of the same document follow one another.
    perform from DODOBJEDNAVKA o where o.ID = a_DDOBID for no key update;
    perform refuse_closed_order(a_DDOBID);
    perform refuse_own_order(a_DDOBID, a_DDOBID_ZDROJ);
    perform refuse_own_order(a_DDOBID, a_DDOBIDVZOR_ZDROJ);
    perform refuse_unknown_source(null, a_DDOBID_ZDROJ);
    perform refuse_unknown_source(null, a_DDOBIDVZOR_ZDROJ);
    perform refuse_unknown_source(a_DODKID_ZDROJ, null);

    update DODOBJEDNAVKA o
    set DODVID = first_line.DODVID
    from (select DODVID from pg_temp.ORDER_STAGED where DODVID is not null order by PLACE limit 1) first_line
    where o.ID = a_DDOBID and o.VZOR = 0 and o.DODVID is null;

    -- Where each supplier's lines go: a template keeps them all, an order those of its own supplier and those without one.
    insert into pg_temp.ORDER_TARGET (DODVID, DDOBID)
    select distinct s.DODVID, o.ID
    from pg_temp.ORDER_STAGED s
    join DODOBJEDNAVKA o on o.ID = a_DDOBID
    where o.VZOR = 1 or s.DODVID is null or s.DODVID = o.DODVID;

    insert into pg_temp.ORDER_TARGET (DODVID, DDOBID)
    select other.DODVID, next_order_id()
    from (select s.DODVID
          from pg_temp.ORDER_STAGED s
          where s.DODVID is not null
            and not exists (select from pg_temp.ORDER_TARGET t where t.DODVID = s.DODVID)
          group by s.DODVID
          order by min(s.PLACE)) other;

    -- A new order's number follows its identifier; one that somebody gave out elsewhere is passed over for the next free
    -- one. A number that another session is just giving out is waited for.
    for made in
        select t.DDOBID, t.DODVID, o.OBJEDNANIDC, o.SKLDID
        from pg_temp.ORDER_TARGET t
        join DODOBJEDNAVKA o on o.ID = a_DDOBID
        where t.DDOBID <> o.ID
        order by t.DDOBID
    loop
        serial := made.DDOBID;
        loop
            insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, DODVID, SKLDID)
            values (made.DDOBID, 0, order_number(made.OBJEDNANIDC, serial), made.OBJEDNANIDC, made.DODVID, made.SKLDID)
            on conflict (VZOR, CISLO) do nothing;
            exit when found;
            serial := serial + 1;
        end loop;
    end loop;

    -- Only a template's lines keep a supplier of their own: an order's lines have the order's. New orders have no line yet.
    select coalesce(max(p.PORADI), 0) into last_line from DODOBJPOL p where p.DDOBID = a_DDOBID;

    insert into DODOBJPOL (DDOBID, PORADI, SKLPID, SKPLID, SKLDID, DODVID, MNOZSTVI, POPIS, KOMENTAR)
    select t.DDOBID,
           case t.DDOBID when a_DDOBID then last_line else 0 end
               + row_number() over (partition by t.DDOBID order by s.PLACE),
           s.SKLPID, s.SKPLID, coalesce(s.SKLDID, o.SKLDID),
           case o.VZOR when 1 then s.DODVID end, s.MNOZSTVI, s.POPIS, s.KOMENTAR
    from pg_temp.ORDER_STAGED s
    join pg_temp.ORDER_TARGET t on coalesce(t.DODVID, 0) = coalesce(s.DODVID, 0)
    join DODOBJEDNAVKA o on o.ID = a_DDOBID
    order by s.PLACE;

    insert into DODOBJZDROJ (DDOBID, DODKIDZDROJ, DDOBIDZDROJ)
    select t.DDOBID, s.DODKID, s.DDOBID
    from (select distinct DDOBID from pg_temp.ORDER_TARGET) t
    cross join (values (a_DODKID_ZDROJ, null), (null, a_DDOBID_ZDROJ), (null, a_DDOBIDVZOR_ZDROJ)) s (DODKID, DDOBID)
    where coalesce(s.DODKID, s.DDOBID) > 0
    on conflict do nothing;

    perform set_config('melvark.created_orders',
                       concat_ws(',', nullif(current_setting('melvark.created_orders', true), ''),
                                 string_agg(t.DDOBID::text, ',' order by t.DDOBID)), false)
    from pg_temp.ORDER_TARGET t
    where t.DDOBID <> a_DDOBID;

    -- The save is over for all that the session had checked, of either kind of document.
    truncate pg_temp.NOTE_STAGED, pg_temp.ORDER_STAGED, pg_temp.ORDER_TARGET;
end
$$;
