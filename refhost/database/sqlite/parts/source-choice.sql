-- Gives the one admissible record of SOURCE_CANDIDATE that SOURCE_SOUGHT names, or refuses: ML020 nothing is given, ML021
-- no such record, ML022 the text is not that of the picked record, ML023 several would do, else the record's own fault.
--
-- returns: ID

select refuse('ML020', 'Zdroj není zadán. Zapište jej, nebo jej vyberte ze seznamu.') as refusal
from SOURCE_SOUGHT
where ID is null and TYPED is null;

select refuse('ML021', KIND || ' „' || shown(coalesce(TYPED, ID)) || '“ neexistuje. Opravte zápis, nebo vyberte ze seznamu.')
           as refusal
from SOURCE_SOUGHT
where not exists (select 1 from SOURCE_CANDIDATE);

select refuse('ML022', 'Zapsáno je „' || shown(s.TYPED) || '“, ale vybráno bylo „' || shown(c.LABEL)
                           || '“. Vyberte ze seznamu znovu.') as refusal
from SOURCE_SOUGHT s
join SOURCE_CANDIDATE c on c.ID = s.ID
where s.TYPED is not null and not c.NAMED;

select refuse(c.FAULT, s.KIND || ' „' || shown(c.LABEL) || '“ ' || case c.FAULT
                  when 'ML024' then 'patří jinému dodavateli než tento doklad. Vyberte ze seznamu doklad stejného dodavatele.'
                  when 'ML025' then 'patří jinému skladu než tento doklad. Vyberte ze seznamu doklad stejného skladu.'
                  when 'ML026' then 'má už všechny položky dodané. Vyberte objednávku, na které něco zbývá.'
                  when 'ML027' then 'je právě upravovaný doklad. Vyberte jako zdroj jiný.'
                  when 'ML028' then 'nemá k datu ' || date_text(s.DAY) || ' žádný platný ceník. Vyberte jiného dodavatele.'
                  when 'ML029' then 'v posledních měsících nic nedodal. Vyberte jiného dodavatele.'
              end) as refusal
from SOURCE_SOUGHT s
join SOURCE_CANDIDATE c on c.ID = (select min(ID) from SOURCE_CANDIDATE)
where not exists (select 1 from SOURCE_CANDIDATE where FAULT is null);

select refuse('ML023', 'Označení „' || shown(TYPED) || '“ má více záznamů. Vyberte ten správný ze seznamu.') as refusal
from SOURCE_SOUGHT
where (select count(*) from SOURCE_CANDIDATE where FAULT is null) > 1;

select ID from SOURCE_CANDIDATE where FAULT is null;
