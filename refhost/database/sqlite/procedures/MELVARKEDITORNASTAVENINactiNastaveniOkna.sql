-- Where the user's editor window of the type stood, in one row; null when that is not known. Refuses nothing.
--
-- in: a_TYPEDITACE integer
-- returns: DATA

select (select o.DATA
        from EDITOROKNO o
        join UZIVATEL u on u.ID = o.UZIVID
        where u.JMENO = current_user_name() and o.TYPEDITACE = :a_TYPEDITACE) as DATA;
