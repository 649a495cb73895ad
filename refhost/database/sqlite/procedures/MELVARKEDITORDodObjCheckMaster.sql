-- Refuses an order or order template that does not exist (ML012) or is closed (ML013).
--
-- in: a_DDOBID integer

select refuse_closed_order(:a_DDOBID) as refusal;
