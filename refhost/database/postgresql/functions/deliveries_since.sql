-- The first day whose deliveries count when the company looks back for so many months from a moment; without a number
-- of months all do. The number is a text.
--
-- Refusals: ML070 a number that is none.
create function deliveries_since(moment timestamp, months text) returns date
language plpgsql stable as $$
begin
    if months is null then
        return '-infinity';
    elsif as_integer(months) between 0 and 1200 then
        return moment::date - make_interval(months => as_integer(months));
    end if;
    perform refuse('ML070', months);
end
$$;
