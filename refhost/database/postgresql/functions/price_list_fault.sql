-- Why a supplier's price list cannot fill an order or order template: the code of the refusal, null when it can. An
-- identifier that is null, 0 or negative is none and restricts nothing; without a moment the document's own counts.
create function price_list_fault(dodvid integer, document integer, supplier integer, moment timestamp) returns text
language sql stable as $$
    select case
        when not exists (select from DODAVATEL v where v.ID = dodvid) then 'ML021'
        when document > 0 and not exists (select from DODOBJEDNAVKA o where o.ID = document) then 'ML012'
        when supplier > 0 and dodvid <> supplier then 'ML024'
        when not exists (select
                         from PRICE_V c
                         where c.DODVID = price_list_fault.dodvid
                           and coalesce(moment, order_moment(document))::date between c.FIRSTDAY and c.LASTDAY)
            then 'ML028'
    end
$$;
