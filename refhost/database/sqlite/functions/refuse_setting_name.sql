-- Refuses a name for a column setting: an empty one (ML062), one of more than 100 characters (ML064), one that another
-- setting of the user has in the same type (ML063). `id` is the setting that is renamed, null for a new one.
--
-- in: name
-- in: type
-- in: id

select case
           when typed(:name) is null then refuse('ML062')
           when length(typed(:name)) > 100
               then refuse('ML064', typed(:name))
       end;

select refuse('ML063', s.NAZEV)
from EDITORNASTAVENI s
join UZIVATEL u on u.ID = s.UZIVID
where s.NAZEV = typed(:name) and s.TYPEDITACE = :type and u.JMENO = current_user_name() and s.ID is not :id;
