-- The identifier of the user's row, which is made here when it is missing: a user is known from the first thing that is
-- kept for him. Two of his sessions may make it at once.
create function user_row() returns integer
language sql as $$
    insert into UZIVATEL (JMENO) values (current_user_name()) on conflict (JMENO) do nothing;

    select ID from UZIVATEL where JMENO = current_user_name()
$$;
