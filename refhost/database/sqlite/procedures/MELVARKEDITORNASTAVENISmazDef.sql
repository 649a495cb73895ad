-- Forgets the user's default for a type; the settings stay. Refuses nothing.
--
-- in: a_TYPEDITACE integer

delete from EDITORNASTAVENIDEF
where TYPEDITACE = :a_TYPEDITACE and UZIVID = (select ID from UZIVATEL where JMENO = current_user_name());
