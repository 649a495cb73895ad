-- Why a supplier's deliveries cannot fill an order or order template: the code of the refusal, null when they can. An
-- identifier that is null, 0 or negative is none and restricts nothing; without a moment the document's own counts.
--
-- Refusals: ML070 `months` is no number of months.
--
-- in: dodvid
-- in: document
-- in: warehouse
-- in: supplier
-- in: moment
-- in: months

select case
           when not exists (select 1 from DODAVATEL where ID = :dodvid) then 'ML021'
           when :document > 0 and not exists (select 1 from DODOBJEDNAVKA where ID = :document) then 'ML012'
           when :supplier > 0 and :dodvid <> :supplier then 'ML024'
           when not exists (select 1
                            from DELIVERY_V
                            where DODVID = :dodvid and (coalesce(:warehouse, 0) <= 0 or SKLDID = :warehouse)
                              and DATUM between
                                  (select deliveries_since(coalesce(:moment, order_moment(:document)), :months))
                                  and (select date(coalesce(:moment, order_moment(:document)))))
               then 'ML029'
       end;
