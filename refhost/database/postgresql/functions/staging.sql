-- The rows of a save that is under way: temporary tables of the session, which MELVARKEDITORResetTemp makes. A second
-- connection of the same user has its own. The session's setting melvark.staging is the state of the save: empty until
-- its rows are emptied, then 'open'; 'refused' after a failure, until the rows are emptied again. A failed call cannot
-- note its own failure, for it is rolled back: the connection does. melvark.last_row is the place of the note's row that
-- was sent last, counted from 0: a setting and no sequence, for it goes back with a call that is rolled back.

-- The temporary tables of the session. IS_OWN: it is ours: whoever may make temporary tables could have made others of our
-- names, with triggers that would run with our rights. IS_OPEN: and a save is under way. A view and no function, with no
-- other condition, for it is asked for every row of a save.
create view STAGING_TABLE as
select c.relname as NAME, pg_get_userbyid(c.relowner) = current_user as IS_OWN,
       pg_get_userbyid(c.relowner) = current_user and current_setting('melvark.staging', true) = 'open' as IS_OPEN
from pg_catalog.pg_class c
where c.relnamespace = pg_my_temp_schema();

create function has_own_staging() returns boolean
language plpgsql stable as $$
begin
    return (select count(*) = 3 from STAGING_TABLE t
            where t.NAME in ('note_staged', 'order_staged', 'order_target') and t.IS_OWN);
end
$$;

-- Refuses a row or a closing call of a save that was not begun by emptying the rows (ML040) or whose earlier call was
-- refused (ML041).
create function refuse_closed_staging() returns void
language plpgsql as $$
declare
    state constant text := coalesce(current_setting('melvark.staging', true), '');
begin
    if state = 'refused' then
        perform refuse('ML041');
    elsif state <> 'open' or not has_own_staging() then
        perform refuse('ML040');
    end if;
end
$$;
