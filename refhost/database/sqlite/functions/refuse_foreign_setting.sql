-- Refuses to change a column setting that the user cannot see (ML060) or that another user shares (ML061).
--
-- in: id

select refuse_unknown_setting(:id);

select refuse('ML061', s.NAZEV)
from EDITORNASTAVENI s
join UZIVATEL u on u.ID = s.UZIVID
where s.ID = :id and u.JMENO <> current_user_name();
