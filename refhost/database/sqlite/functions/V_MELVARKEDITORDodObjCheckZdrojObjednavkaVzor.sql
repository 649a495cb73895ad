-- 1 for an order or order template that can be the source of another: see order_fault_for_order.
--
-- in: id
-- in: skldid
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier

select order_fault_for_order(:id, :skldid, :dodvid, :document, :warehouse, :supplier) is null;
