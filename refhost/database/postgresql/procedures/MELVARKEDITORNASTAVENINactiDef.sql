-- The setting with which the user's next editor of the type starts, in one row. Its values are null when there is none:
-- never chosen, forgotten, deleted, or another user's that is no longer shared. Refuses nothing.
create function MELVARKEDITORNASTAVENINactiDef(a_TYPEDITACE integer default null) returns table (ID integer, DATA text)
language sql stable as $$
    select s.ID, s.DATA
    from (select) one
    left join EDITORNASTAVENI s
        on s.ID = (select d.NASTAVENIID
                   from EDITORNASTAVENIDEF d
                   join UZIVATEL u on u.ID = d.UZIVID
                   where u.JMENO = current_user_name() and d.TYPEDITACE = a_TYPEDITACE)
       and (s.SDILENE = 1 or s.UZIVID = (select u.ID from UZIVATEL u where u.JMENO = current_user_name()))
$$;
