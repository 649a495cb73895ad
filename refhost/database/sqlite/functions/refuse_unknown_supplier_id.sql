-- Refuses a source supplier that does not exist (ML021); null is none.
--
-- in: id

select refuse('ML021', 'Dodavatel', :id)
where not exists (select 1 from DODAVATEL where ID = :id);
