-- Whose session it is and what time it is for him. A procedure runs with its owner's rights, but the session stays that
-- of the role that connected.

create function current_user_name() returns text
language sql stable as $$
    select session_user::text
$$;

-- The moment of now where the company is: the parameter CASOVEPASMO of the section FIRMA, a name of the time zone
-- database, Europe/Prague without one. A client's own zone means nothing. Refusal ML071: there is no such zone.
create function now_moment() returns timestamp
language plpgsql stable as $$
declare
    zone constant text := coalesce(typed(V_GetGlobalParam('FIRMA', 'CASOVEPASMO')), 'Europe/Prague');
begin
    -- The server would take rules of other kinds for a zone, too, and read some of them the other way round. Nearly all
    -- of these have digits, names of regions have none.
    if zone !~* '^(UTC|[a-z_-]+(/[a-z_-]+)+|Etc/GMT(0|[+-][0-9]|[+-]1[0-2]|-1[34]))$' or zone ~* '^(posix|right)/' then
        perform refuse('ML071', zone);
    end if;
    return date_trunc('second', now() at time zone zone);
exception
    when invalid_parameter_value then
        perform refuse('ML071', zone);
end
$$;

create function today() returns date
language plpgsql stable as $$
begin
    return now_moment();
end
$$;
