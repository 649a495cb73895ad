-- Refuses to change a column setting that the user cannot see (ML060) or that another user shares (ML061). Until the end
-- of the change nobody else changes or deletes it.
create function refuse_foreign_setting(id integer) returns void
language sql as $$
    select from EDITORNASTAVENI s where s.ID = refuse_foreign_setting.id for update;

    select refuse_unknown_setting(refuse_foreign_setting.id);

    select refuse('ML061', s.NAZEV)
    from EDITORNASTAVENI s
    join UZIVATEL u on u.ID = s.UZIVID
    where s.ID = refuse_foreign_setting.id and u.JMENO <> current_user_name()
$$;
