-- Refuses a delivery note that does not exist (ML010); null is none.
--
-- in: id

select refuse('ML010', :id)
where not exists (select 1 from DODAK where ID = :id);
