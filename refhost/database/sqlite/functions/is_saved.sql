-- Whether the save that the session is about has come for the document.
--
-- in: kind
-- in: document

select exists (select 1
               from ULOZENI u
               join temp.SAVE_IDENTITY s on s.IDENTITA = u.IDENTITA
               where u.DRUH = :kind and u.DOKLAD = :document);
