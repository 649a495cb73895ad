-- Why a supplier's deliveries cannot fill an order or order template: the code of the refusal, null when they can. An
-- identifier that is null, 0 or negative is none and restricts nothing; without a moment the document's own counts.
--
-- Refusals: ML070 `months` is no number of months.
create function deliveries_fault(dodvid integer, document integer, warehouse integer, supplier integer,
                                 moment timestamp, months text) returns text
language plpgsql stable as $$
declare
    until constant timestamp := coalesce(moment, melvark.order_moment(document));
begin
    return case
        when not exists (select from melvark.DODAVATEL v where v.ID = dodvid) then 'ML021'
        when document > 0 and not exists (select from melvark.DODOBJEDNAVKA o where o.ID = document) then 'ML012'
        when supplier > 0 and dodvid <> supplier then 'ML024'
        -- The limit keeps the planner from reading the lines of everybody's notes for as long as none is his.
        when not exists (select
                         from melvark.DODAK d
                         where d.DODVID = $1
                           and d.DATUM between (select melvark.deliveries_since(until, months)) and until::date
                           and (select true
                                from melvark.DELIVERY_V v
                                where v.DODKID = d.ID and (coalesce(warehouse, 0) <= 0 or v.SKLDID = warehouse)
                                limit 1))
            then 'ML029'
    end;
end
$$;
