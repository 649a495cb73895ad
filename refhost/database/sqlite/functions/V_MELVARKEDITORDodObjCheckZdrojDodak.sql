-- 1 for a delivery note that can be the source of an order or order template: see note_fault_for_order.
--
-- in: id
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier

select note_fault_for_order(:id, :dodvid, :document, :warehouse, :supplier) is null;
