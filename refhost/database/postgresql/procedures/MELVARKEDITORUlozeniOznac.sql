-- Gives the save that is under way its identity, 32 hexadecimal digits that no other save has; null takes it away. The
-- closing call writes it down.
--
-- Refusals: ML056 it is no identity.
--
-- after failure: staging refused

create function MELVARKEDITORUlozeniOznac(a_ULOZENI text default null) returns void
language plpgsql as $$
begin
    if a_ULOZENI is not null then
        perform refuse_wrong_identity(a_ULOZENI);
    end if;
    perform set_config('melvark.save', coalesce(a_ULOZENI, ''), false);
end
$$;
