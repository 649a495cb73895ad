-- What follows once ULOZENI has the save's identity: the session is not about that save any more, and old rows go.
update SAVE_IDENTITY set IDENTITA = null;

delete from ULOZENI
where IDENTITA in (select IDENTITA from ULOZENI where KDY < datetime('now', '-30 days') order by KDY limit 100);
