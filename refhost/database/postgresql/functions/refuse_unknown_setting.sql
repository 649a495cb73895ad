-- Refuses a column setting that does not exist or that another user keeps for himself (ML060).
create function refuse_unknown_setting(id integer) returns void
language sql as $$
    select refuse('ML060', refuse_unknown_setting.id::text)
    where not exists (select
                      from EDITORNASTAVENI s
                      join UZIVATEL u on u.ID = s.UZIVID
                      where s.ID = refuse_unknown_setting.id
                        and (u.JMENO = current_user_name() or s.SDILENE = 1))
$$;
