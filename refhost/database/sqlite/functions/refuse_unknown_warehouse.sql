-- Refuses a warehouse that does not exist (ML044); null is none and passes.
--
-- in: name

select refuse('ML044', :name)
where :name is not null and not exists (select 1 from SKLAD where NAZEV = :name);
