-- Refuses a warehouse that does not exist (ML044); null is none and passes.
--
-- in: name

select refuse('ML044', 'Sklad „' || shown(:name) || '“ neexistuje. Vyberte sklad ze seznamu.')
where :name is not null and :name not in (select NAZEV from SKLAD);
