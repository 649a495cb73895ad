-- Refuses a delivery note as the source of its own lines (ML027).
--
-- in: note
-- in: source

select refuse('ML027', 'Dodací list', CISLO) from DODAK where ID = :note and ID = :source;
