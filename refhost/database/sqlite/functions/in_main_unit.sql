-- A quantity in the item's main unit, the measure of what is delivered; the factor is that of the quantity's own unit.
--
-- in: quantity
-- in: factor

select dec_round(dec_mul(:quantity, :factor), 6);
