-- Makes the setting of CHOSEN_SETTING the user's default for its type.
insert into EDITORNASTAVENIDEF (UZIVID, TYPEDITACE, NASTAVENIID)
select u.ID, s.TYPEDITACE, s.ID
from CHOSEN_SETTING c
join EDITORNASTAVENI s on s.ID = c.ID
join UZIVATEL u on u.JMENO = current_user_name()
where true
on conflict (UZIVID, TYPEDITACE) do update set NASTAVENIID = excluded.NASTAVENIID;
