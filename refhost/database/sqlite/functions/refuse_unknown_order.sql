-- Refuses a document that is neither an order nor an order template (ML012); null is none.
--
-- in: id

select refuse('ML012', :id)
where not exists (select 1 from DODOBJEDNAVKA where ID = :id);
