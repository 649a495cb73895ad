-- 1 for a supplier whose price list can fill an order or order template: see price_list_fault. A price list has no
-- warehouse, so that the document's restricts nothing.
--
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier
-- in: moment

select price_list_fault(:dodvid, :document, :supplier, parse_moment(:moment)) is null;
