-- Forgets the user's default for a type; the settings stay. Refuses nothing.
create function MELVARKEDITORNASTAVENISmazDef(a_TYPEDITACE integer default null) returns void
language sql as $$
    delete from EDITORNASTAVENIDEF
    where TYPEDITACE = a_TYPEDITACE and UZIVID = (select u.ID from UZIVATEL u where u.JMENO = current_user_name())
$$;
