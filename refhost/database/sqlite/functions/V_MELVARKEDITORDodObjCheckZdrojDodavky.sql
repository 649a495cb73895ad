-- 1 for a supplier whose deliveries can fill an order or order template: see deliveries_fault.
--
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier
-- in: moment
-- in: months

select deliveries_fault(:dodvid, :document, :warehouse, :supplier, parse_moment(:moment), :months) is null;
