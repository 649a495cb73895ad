-- Refuses a document that is neither an order nor an order template (ML012); null is none.
--
-- in: id

select refuse('ML012', 'Objednávka ani vzor objednávky s identifikátorem ' || coalesce(:id, 'NULL')
                           || ' neexistuje. Obnovte seznam a vyberte jiný doklad.')
where not exists (select 1 from DODOBJEDNAVKA where ID = :id);
