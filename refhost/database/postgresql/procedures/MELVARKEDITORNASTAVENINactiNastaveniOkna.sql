-- Where the user's editor window of the type stood, in one row; null when that is not known. Refuses nothing.
create function MELVARKEDITORNASTAVENINactiNastaveniOkna(a_TYPEDITACE integer default null) returns table (DATA text)
language sql stable as $$
    select (select o.DATA
            from EDITOROKNO o
            join UZIVATEL u on u.ID = o.UZIVID
            where u.JMENO = current_user_name() and o.TYPEDITACE = a_TYPEDITACE)
$$;
