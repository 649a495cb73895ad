-- 1 for an order that can be the source of a delivery note: see order_fault_for_note.
--
-- in: id
-- in: skldid
-- in: dodvid
-- in: note
-- in: supplier
-- in: delivered

select order_fault_for_note(:id, :skldid, :dodvid, :note, :supplier, :delivered) is null;
