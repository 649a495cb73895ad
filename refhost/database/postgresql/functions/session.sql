-- Whose session it is and what time it is for him. A procedure runs with its owner's rights, but the session stays that
-- of the role that connected.

create function current_user_name() returns text
language sql stable as $$
    select session_user::text
$$;

create function now_moment() returns timestamp
language sql stable as $$
    select date_trunc('second', localtimestamp)
$$;
