-- The column settings of an editor that the user may load: his own by name, then those that others share, by name.
-- Refuses nothing.
create function MELVARKEDITORNASTAVENIGetList(a_TYPEDITACE integer default null) returns table (NAZEV text, ID integer)
language sql stable as $$
    select s.NAZEV, s.ID
    from EDITORNASTAVENI s
    join UZIVATEL u on u.ID = s.UZIVID
    where s.TYPEDITACE = a_TYPEDITACE and (u.JMENO = current_user_name() or s.SDILENE = 1)
    order by u.JMENO <> current_user_name(), s.NAZEV, s.ID
$$;
