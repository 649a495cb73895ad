-- Why a supplier's price list cannot fill an order or order template: the code of the refusal, null when it can. An
-- identifier that is null, 0 or negative is none and restricts nothing; without a moment the document's own counts.
create function price_list_fault(dodvid integer, document integer, supplier integer, moment timestamp) returns text
language plpgsql stable as $$
declare
    day constant date := coalesce(moment, melvark.order_moment(document));
begin
    return case
        when not exists (select from melvark.DODAVATEL v where v.ID = dodvid) then 'ML021'
        when document > 0 and not exists (select from melvark.DODOBJEDNAVKA o where o.ID = document) then 'ML012'
        when supplier > 0 and dodvid <> supplier then 'ML024'
        when not exists (select
                         from melvark.PRICE_V c
                         where c.DODVID = $1
                           and day between c.FIRSTDAY and c.LASTDAY)
            then 'ML028'
    end;
end
$$;
