-- Whether the save of this identity has come, for good: a closing call under way is waited for, and one that has not come
-- by now will be refused when it does. The session is about this save from here on, so that unsaved work on what it saved
-- is not taken up.
--
-- Refusals: ML056 it is no identity.
--
-- after failure: staging refused

create function MELVARKEDITORUlozeniOver(a_ULOZENI text default null, out a_ULOZENO integer)
language plpgsql as $$
begin
    perform refuse_wrong_identity(a_ULOZENI);
    perform set_config('melvark.save', a_ULOZENI, false);
    insert into ULOZENI (IDENTITA, UZIVATEL) values (a_ULOZENI, current_user_name()) on conflict do nothing;
    a_ULOZENO := exists (select from ULOZENI u where u.IDENTITA = a_ULOZENI and u.DRUH is not null)::integer;
end
$$;
