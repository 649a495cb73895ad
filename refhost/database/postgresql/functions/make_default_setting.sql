-- Makes a setting the user's default for its type.
create function make_default_setting(id integer) returns void
language sql as $$
    insert into EDITORNASTAVENIDEF (UZIVID, TYPEDITACE, NASTAVENIID)
    select user_row(), s.TYPEDITACE, s.ID
    from EDITORNASTAVENI s
    where s.ID = make_default_setting.id
    on conflict (UZIVID, TYPEDITACE) do update set NASTAVENIID = excluded.NASTAVENIID
$$;
