-- Refuses a column setting that does not exist or that another user keeps for himself (ML060).
--
-- in: id

select refuse('ML060', :id)
where not exists (select 1
                  from EDITORNASTAVENI s
                  join UZIVATEL u on u.ID = s.UZIVID
                  where s.ID = :id and (u.JMENO = current_user_name() or s.SDILENE = 1));
